#include "RibbonContainers.h"

#include "common/HostIdentifiers.h"
#include "common/IdentifierMatch.h"

#include <CFxUI.h>

CFxUIRibbonTab* RibbonContainers::findTab(const CFxUIGroup& mainGroup, const CFxString& tabId)
{
    return IdentifierMatch::firstInAnyCase(mainGroup.GetRibbonTabs(), tabId);
}

RibbonContainers::RowPlace RibbonContainers::findRow(const CFxUIGroup& mainGroup,
                                                     const CFxString& tabId,
                                                     const CFxString& panelId,
                                                     const CFxString& rowId)
{
    CFxUIRibbonTab* tab = findTab(mainGroup, tabId);
    if (!tab)
        return {};
    // The host's lists hold no null entries, so every entry can be looked at.
    for (CFxUIRibbonPanel* panel : tab->GetPanels()) {
        if (!IdentifierMatch::inAnyCase(panel->GetIdentifier(), panelId))
            continue;
        if (CFxUIRibbonRow* row = IdentifierMatch::firstInAnyCase(panel->GetRows(), rowId))
            return {tab, panel, row};
    }
    return {};
}

CFxUIRibbonTab* RibbonContainers::findOrCreateTab(CFxUI& ui, CFxUIGroup& mainGroup,
                                                  const CFxString& tabId, const CFxString& caption)
{
    if (CFxUIRibbonTab* tab = findTab(mainGroup, tabId))
        return tab;
    CFxUIRibbonTab* tab = ui.CreateRibbonTab(tabId);
    if (!tab)
        return nullptr;
    tab->SetCaption(caption);
    tab->SetListCaption(caption);
    mainGroup.GetRibbonTabs().Append(tab);
    // The host always has this workspace; without it the tab is only left out of it.
    if (CFxUIWorkspace* workspace = ui.FindWorkspace(CFxString(kDraftingWorkspace)))
        workspace->GetRibbonTabs().Append(tab);
    return tab;
}

CFxUIRibbonPanel* RibbonContainers::findOrCreatePanel(CFxUI& ui, CFxUIGroup& mainGroup,
                                                      CFxUIRibbonTab& tab, const CFxString& panelId,
                                                      const CFxString& caption)
{
    if (CFxUIRibbonPanel* panel = IdentifierMatch::firstInAnyCase(tab.GetPanels(), panelId))
        return panel;
    CFxUIRibbonPanel* panel = ui.CreateRibbonPanel(panelId);
    panel->SetCaption(caption);
    panel->SetCollapsedCaption(caption);
    panel->SetLauncher(0);
    tab.GetPanels().Append(panel);
    mainGroup.GetRibbonPanels().Append(panel);
    return panel;
}

CFxUIRibbonRow* RibbonContainers::findOrCreateRow(CFxUI& ui, CFxUIRibbonPanel& panel,
                                                  const CFxString& rowId)
{
    if (CFxUIRibbonRow* row = IdentifierMatch::firstInAnyCase(panel.GetRows(), rowId))
        return row;
    CFxUIRibbonRow* row = ui.CreateRibbonRow(rowId);
    panel.GetRows().Append(row);
    return row;
}
