#pragma once

#include <QHash>
#include <QString>

class CFxUIRibbonButton;

// The top-level buttons that the ribbon wrapper made, by identifier: what tells it which
// buttons of the fixed order are present. It starts with the four identifiers of the order
// table, each without a button; an identifier, once in it, stays. Identifiers match in any
// letter case, as the host's do, so that unloading "id_gcode_item" forgets the button loaded
// as "ID_GCODE_ITEM" and no button taken out of the ribbon is left here as an anchor: the
// table is keyed by the case-folded identifier, so a look-up costs the same however many
// identifiers it holds. Made on first use and kept until the process ends.
class LoadedRibbonItems
{
public:
    // The button stored for `id`; null when there is none.
    static CFxUIRibbonButton* button(const QString& id);
    // Stores `button` (null to forget) for `id`, under the identifier already there if any.
    static void store(const QString& id, CFxUIRibbonButton* button);
    // The button that one of order `id` goes after: the stored button of the nearest
    // identifier before it in the order table; null when there is none (or `id` is not in it).
    static CFxUIRibbonButton* predecessorOf(const QString& id);

private:
    static QHash<QString, CFxUIRibbonButton*>& map();
};
