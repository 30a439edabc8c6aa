// The exported wrapper class as a sibling that links the module calls it, for a row other than
// the Add-Ins row.
#include "RibbonHost.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <CFxString.h>
#include <CFxUIJsonReader.h>
#include <ExtCommands/ExportTableRibbon.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>

// The host's user interface from the default profile, for the life of a test.
class RibbonMembers : public ::testing::Test
{
protected:
    ~RibbonMembers() override { GetFxHostServices()->SetUI(nullptr); }

    static CFxHostUI& useDefaultProfile()
    {
        auto owned = std::make_unique<CFxHostUI>();
        CFxUIJsonReader::readFile(kDefaultProfile, *owned);
        CFxHostUI& ui = *owned;
        GetFxHostServices()->SetUI(std::move(owned));
        return ui;
    }

    CFxHostUI& ui = useDefaultProfile();
};

// Kept: docs/lifecycle.md, row "Siblings' buttons".
TEST_F(RibbonMembers, UnloadRibbonMenuTakesAnyRowsPanelWithItsLastButton)
{
    RibbonMenuItemWrapper* wrapper = RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance();
    RibbonItem item = record("ID_MEMBERS_TOOL");
    item.tabId = QStringLiteral("ID_RibbonHomeTab");
    item.panelId = QStringLiteral("ID_RibbonDrawPanel");
    item.rowId = QStringLiteral("ID_MEMBERS_ROW");
    wrapper->LoadRibbonMenu(&item, 0);

    wrapper->UnloadRibbonMenu(item.id, kAddInsTab, "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow");
    wrapper->UnloadRibbonMenu(item.id, "ID_RibbonHomeTab", "ID_NO_PANEL", "ID_MEMBERS_ROW");
    wrapper->UnloadRibbonMenu(item.id, "ID_RibbonHomeTab", "ID_RibbonDrawPanel", "ID_NO_ROW");
    EXPECT_NE(ui.FindCommand("QUILLON", item.id), nullptr)
        << "no such tab, panel or row: nothing happens";
    EXPECT_NE(row(*exactly(ui.GetMenuGroups(), "QUILLON"), "ID_RibbonHomeTab", "ID_RibbonDrawPanel",
                  "ID_MEMBERS_ROW"),
              nullptr);
    wrapper->UnloadRibbonMenu(item.id, "id_ribbonhometab", "ID_RIBBONDRAWPANEL", "id_members_row");
    EXPECT_EQ(ui.FindCommand("QUILLON", item.id), nullptr);
    EXPECT_EQ(ids(exactly(ui.GetMenuGroups(), "QUILLON")->GetRibbonTabs().GetAt(0)->GetPanels()),
              (QStringList{"ID_RibbonModifyPanel", "ID_RibbonAnnotationPanel"}))
        << "the emptied row's panel goes, with the host's own row that it holds";
}

// The export-table singleton's look-ups, as a sibling that links the module calls them.
TEST_F(RibbonMembers, TheExportTableFindsTheMainGroupAndDirectSubEntriesInAnyLetterCase)
{
    ExportTableRibbon* table = ExportTableRibbon::GetExportTableInstance();
    CFxUIGroup* main = table->GetMainGroup(&ui);
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(main->GetIdentifier().toQString(), "QUILLON");
    EXPECT_EQ(table->GetMainGroup(nullptr), nullptr);

    CFxUIRibbonSystemMenuItem* top = menuEntry(*main, {"RSM"});
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(table->SearchRibbonMenuItem(top, CFxString(QStringLiteral("rsmi_10"))),
              menuEntry(*main, {"RSM", "RSMI_10"}));
    EXPECT_EQ(table->SearchRibbonMenuItem(top, CFxString(QStringLiteral("RSMI_13"))), nullptr)
        << "an entry one level further down is not a direct sub-entry";
    EXPECT_EQ(table->SearchRibbonMenuItem(nullptr, CFxString(QStringLiteral("RSM"))), nullptr);
}
