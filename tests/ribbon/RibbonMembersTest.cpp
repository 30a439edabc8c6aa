// The exported wrapper class as a sibling that links the module calls it, for a row other than
// the Add-Ins row.
#include "RibbonHost.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <CFxUIJsonReader.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>

TEST(RibbonMembers, UnloadRibbonMenuTakesAnyRowsPanelWithItsLastButton)
{
    auto owned = std::make_unique<CFxHostUI>();
    CFxUIJsonReader::readFile(kDefaultProfile, *owned);
    CFxHostUI& ui = *owned;
    GetFxHostServices()->SetUI(std::move(owned));
    RibbonMenuItemWrapper* wrapper = RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance();
    RibbonItem item = record("ID_MEMBERS_TOOL");
    item.tabId = QStringLiteral("ID_RibbonHomeTab");
    item.panelId = QStringLiteral("ID_RibbonDrawPanel");
    item.rowId = QStringLiteral("ID_MEMBERS_ROW");
    wrapper->LoadRibbonMenu(&item, 0);

    wrapper->UnloadRibbonMenu(item.id, kAddInsTab, "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow");
    EXPECT_NE(ui.FindCommand("QUILLON", item.id), nullptr) << "no such row: nothing happens";
    wrapper->UnloadRibbonMenu(item.id, "id_ribbonhometab", "ID_RIBBONDRAWPANEL", "id_members_row");
    EXPECT_EQ(ui.FindCommand("QUILLON", item.id), nullptr);
    EXPECT_EQ(ids(exactly(ui.GetMenuGroups(), "QUILLON")->GetRibbonTabs().GetAt(0)->GetPanels()),
              (QStringList{"ID_RibbonModifyPanel", "ID_RibbonAnnotationPanel"}))
        << "the emptied row's panel goes, with the host's own row that it holds";
    GetFxHostServices()->SetUI(nullptr);
}
