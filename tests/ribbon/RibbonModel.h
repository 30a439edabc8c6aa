#pragma once

#include <QStringList>

#include <CFxUIList.h>
#include <ExtCommands/RibbonItem.h>

class CFxString;
class CFxUIGroup;
class CFxUIRibbonButton;
class CFxUIRibbonRow;
class CFxUIRibbonSystemMenuItem;

// Records to load and questions about the host's model, for the ribbon tests. The questions
// walk the model on their own, without the module's code.
class RibbonModel
{
public:
    static constexpr const char* kAddInsTab = "ID_RibbonAddInsTab";
    static constexpr const char* kAddInsPanel = "ID_RibbonAddInsPanel";
    static constexpr const char* kAddInsRow = "ID_RibbonAddInsRow";

    // A record for the Add-Ins row: text, command name and description made from `id`.
    static RibbonItem addInsRecord(const QString& id, const QString& type = "command");
    // The same record for another tab, panel and row.
    static RibbonItem recordIn(const QString& id, const QString& tabId, const QString& panelId,
                               const QString& rowId);

    // The row (exact identifiers), or null.
    static CFxUIRibbonRow* row(const CFxUIGroup& group, const QString& tabId,
                               const QString& panelId, const QString& rowId);
    static CFxUIRibbonRow* addInsRow(const CFxUIGroup& group);
    // Identifiers of the Add-Ins row's buttons; empty when there is no such row.
    static QStringList addInsButtons(const CFxUIGroup& group);
    // The first top-level button of that identifier in the Add-Ins row, or null.
    static CFxUIRibbonButton* addInsButton(const CFxUIGroup& group, const QString& id);
    // The entry of that identifier on the path of identifiers through the application menu.
    static CFxUIRibbonSystemMenuItem* menuEntry(const CFxUIGroup& group, const QStringList& path);

    template <class T>
    static QStringList ids(const CFxUIList<T>& list)
    {
        QStringList result;
        for (const T* item : list)
            result << text(item->GetIdentifier());
        return result;
    }
    static QStringList texts(const CFxUIList<CFxUIRibbonButton>& buttons);

private:
    static QString text(const CFxString& value);
};
