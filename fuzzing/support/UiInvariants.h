#pragma once

#include <QString>

class CFxHostUI;
class CFxUIRibbonRow;
class CFxUIGroup;

// What a sibling module relies on in the host's UI model, whatever order it and its siblings
// called the ribbon interface in. Each check gives an empty text when it holds, or what broke.
class UiInvariants
{
public:
    static CFxUIGroup* mainGroup(const CFxHostUI& ui);
    // The Add-Ins row, found as the module finds it; null when there is none.
    static CFxUIRibbonRow* addInsRow(const CFxHostUI& ui);

    // No row of the main group's tabs holds two buttons with one identifier (letter case
    // aside), and no button anywhere carries the hidden mark "~" twice.
    static QString rowsAndMarks(const CFxHostUI& ui);
    // The buttons of the Add-Ins row that the ribbon orders stand in their order.
    static QString orderedButtons(const CFxHostUI& ui);
    // The Add-Ins tab, where the main group shows it, holds a panel; after an unload, the
    // Add-Ins row is gone or holds a button.
    static QString noEmptyAddIns(const CFxHostUI& ui, bool afterUnload);
    // The entries `id` of the data-management split button are marked hidden exactly when
    // `visible` is false.
    static QString visibility(const CFxHostUI& ui, const QString& id, bool visible);
    // The application menu holds the export-table entry at most once under each parent.
    static QString exportTableEntries(const CFxHostUI& ui);
};
