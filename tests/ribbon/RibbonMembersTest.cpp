// The exported classes as a sibling that links the module uses them: this program is linked
// against ExtCommands.tx and calls the members through the public headers.
#include "RibbonModel.h"

#include <gtest/gtest.h>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <CFxUIJsonReader.h>
#include <ExtCommands/ExportTableRibbon.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>

#include <memory>

namespace {
// A host UI for the length of a test, built from the host's own profile.
class HostUi
{
public:
    HostUi()
    {
        auto ui = std::make_unique<CFxUI>();
        CFxUIJsonReader::readFile(QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json"), *ui);
        GetFxSystemServices()->SetUI(std::move(ui));
    }
    ~HostUi() { GetFxSystemServices()->SetUI(nullptr); }

    CFxUI& ui() const { return *GetFxSystemServices()->GetUI(); }
    CFxUIGroup& mainGroup() const
    {
        return *ExportTableRibbon::GetExportTableInstance()->GetMainGroup(&ui());
    }
};
} // namespace

TEST(RibbonMembers, GetMainGroupTakesTheFirstMainGroup)
{
    ExportTableRibbon* exportTable = ExportTableRibbon::GetExportTableInstance();
    EXPECT_EQ(exportTable->GetMainGroup(nullptr), nullptr);

    CFxUI ui;
    ui.GetMenuGroups().Append(ui.CreateMenuGroup("FIRST"));
    EXPECT_EQ(exportTable->GetMainGroup(&ui), nullptr);
    CFxUIGroup* second = ui.CreateMenuGroup("SECOND");
    CFxUIGroup* third = ui.CreateMenuGroup("THIRD");
    second->SetMainGroup(true);
    third->SetMainGroup(true);
    ui.GetMenuGroups().Append(second);
    ui.GetMenuGroups().Append(third);
    EXPECT_EQ(exportTable->GetMainGroup(&ui), second);
}

TEST(RibbonMembers, SearchRibbonMenuItemLooksOneLevelDownInAnyLetterCase)
{
    HostUi host;
    ExportTableRibbon* exportTable = ExportTableRibbon::GetExportTableInstance();
    CFxUIRibbonSystemMenuItem* top = RibbonModel::menuEntry(host.mainGroup(), {"RSM"});

    EXPECT_EQ(exportTable->SearchRibbonMenuItem(nullptr, "RSMI_10"), nullptr);
    EXPECT_EQ(exportTable->SearchRibbonMenuItem(top, "rsmi_10"),
              RibbonModel::menuEntry(host.mainGroup(), {"RSM", "RSMI_10"}));
    EXPECT_EQ(exportTable->SearchRibbonMenuItem(top, "RSMI_13"), nullptr) << "one level only";
    EXPECT_EQ(exportTable->SearchRibbonMenuItem(top, "RSMI_NONE"), nullptr);
}

TEST(RibbonMembers, UnloadRibbonMenuTakesAnyRowsPanelWithItsLastButton)
{
    HostUi host;
    RibbonMenuItemWrapper* wrapper = RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance();
    RibbonItem item = RibbonModel::recordIn("ID_MEMBERS_TOOL", "ID_RibbonHomeTab",
                                            "ID_RibbonDrawPanel", "ID_MEMBERS_ROW");
    wrapper->LoadRibbonMenu(&item, 0);
    const CFxUIRibbonTab* home = host.mainGroup().GetRibbonTabs().GetAt(0);
    ASSERT_EQ(RibbonModel::ids(home->GetPanels()).first(), "ID_RibbonDrawPanel");

    wrapper->UnloadRibbonMenu("ID_MEMBERS_TOOL", "ID_RibbonAddInsTab", "ID_RibbonAddInsPanel",
                              "ID_RibbonAddInsRow");
    EXPECT_NE(host.ui().FindCommand("QUILLON", "ID_MEMBERS_TOOL"), nullptr)
        << "no such row: nothing happens";

    wrapper->UnloadRibbonMenu("ID_MEMBERS_TOOL", "id_ribbonhometab", "ID_RIBBONDRAWPANEL",
                              "id_members_row");
    EXPECT_EQ(host.ui().FindCommand("QUILLON", "ID_MEMBERS_TOOL"), nullptr);
    EXPECT_EQ(RibbonModel::ids(home->GetPanels()),
              (QStringList{"ID_RibbonModifyPanel", "ID_RibbonAnnotationPanel"}))
        << "the emptied row's panel goes, with the host's own row that it holds";
}
