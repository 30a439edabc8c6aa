#pragma once

class CFxString;
class CFxUI;
class CFxUIGroup;
class CFxUIRibbonPanel;
class CFxUIRibbonRow;
class CFxUIRibbonTab;

// Finds and makes the tabs, panels and rows of the host's ribbon that buttons loaded at run
// time go into. Identifiers match in any letter case and the first match wins.
class RibbonContainers
{
public:
    // Where a row was found; all null when it was not.
    struct RowPlace
    {
        CFxUIRibbonTab* tab = nullptr;
        CFxUIRibbonPanel* panel = nullptr;
        CFxUIRibbonRow* row = nullptr;
    };

    static CFxUIRibbonTab* findTab(const CFxUIGroup& mainGroup, const CFxString& tabId);
    // The row `rowId` of the first panel `panelId` of the tab `tabId` that has one.
    static RowPlace findRow(const CFxUIGroup& mainGroup, const CFxString& tabId,
                            const CFxString& panelId, const CFxString& rowId);

    // A new tab gets `caption` as both its captions and joins the main group's tabs and those
    // of the workspace "Drafting and Annotation". Null when the host makes no tab.
    static CFxUIRibbonTab* findOrCreateTab(CFxUI& ui, CFxUIGroup& mainGroup, const CFxString& tabId,
                                           const CFxString& caption);
    // A new panel gets `caption` as both its captions, no dialog launcher, and joins the tab's
    // panels and the main group's.
    static CFxUIRibbonPanel* findOrCreatePanel(CFxUI& ui, CFxUIGroup& mainGroup,
                                               CFxUIRibbonTab& tab, const CFxString& panelId,
                                               const CFxString& caption);
    static CFxUIRibbonRow* findOrCreateRow(CFxUI& ui, CFxUIRibbonPanel& panel,
                                           const CFxString& rowId);
};
