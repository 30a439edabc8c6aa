#pragma once

#include "ExtCommandsExport.h"
#include "RibbonItem.h"

// Puts sibling modules' buttons on the host's ribbon. One instance per process, made on first
// use and never destroyed; it has no state of its own.
class EXTCOMMANDS_EXPORT RibbonMenuItemWrapper
{
public:
    static RibbonMenuItemWrapper* GetRibbonMenuItemWrapperInstance();

    // Finds or creates the tab, panel and row named in `item`, then adds its command and its
    // button (with the sub-buttons of its children). An identifier that the row already holds
    // changes nothing. `position` is accepted and decides nothing: "ID_DRAWCOMPARE_ITEM",
    // "ID_GCODE_ITEM", "ID_VAULTLINE_ITEM" and "ID_PK_PARTKIT" always stand in that order,
    // each after the nearest one before it that is loaded, and any other button goes first.
    void LoadRibbonMenu(RibbonItem* item, int position);
    // Removes the button `itemId` from the row and deletes its command; a panel left without
    // buttons leaves its tab, and a tab left without panels leaves the ribbon.
    void UnloadRibbonMenu(const QString& itemId, const QString& tabId, const QString& panelId,
                          const QString& rowId);

private:
    RibbonMenuItemWrapper() = default;
};

extern "C" {
// RibbonMenuItemWrapper::LoadRibbonMenu on the one instance. `item` must not be null.
EXTCOMMANDS_EXPORT void LoadRibbonMenuWrapper(RibbonItem* item, int position);
// RibbonMenuItemWrapper::UnloadRibbonMenu for a button of the Add-Ins row
// ("ID_RibbonAddInsTab", "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow").
EXTCOMMANDS_EXPORT void UnLoadRibbonMenuWrapper(const QString& itemId);
// Shows or hides the entries `itemId` of the split button "ID_VAULTLINE_ITEM" in the Add-Ins
// row. A hidden entry's text starts with "~"; there is never more than one such mark.
EXTCOMMANDS_EXPORT void SetRibbonItemVisibility(const QString& itemId, bool visible);
}
