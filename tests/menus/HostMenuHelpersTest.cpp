// The module's look-up of the Help menu, built here from the module's source and asked for
// menus of a host UI model made from a profile: only "ID_MnHelp", written exactly so, finds
// anything, and only the Help menu outside the reference group. The items inside it are
// matched in any letter case.
#include "menus/HostMenuHelpers.h"

#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <CFxUIJsonReader.h>

#include <memory>

namespace {
const QString kNone = QStringLiteral("<none>");

class HelpMenuLookupTest : public ::testing::Test
{
protected:
    void TearDown() override { GetFxHostServices()->SetUI(nullptr); }

    static void useProfile(const QString& path)
    {
        auto ui = std::make_unique<CFxHostUI>();
        CFxUIJsonReader::readFile(path, *ui);
        GetFxHostServices()->SetUI(std::move(ui));
    }

    // The menu `menuId` of the group `groupId`, both written exactly.
    static CFxUIPullDownMenu* menu(const QString& groupId, const QString& menuId)
    {
        for (CFxUIGroup* group : GetFxHostServices()->GetUI()->GetMenuGroups()) {
            if (group->GetIdentifier().toQString() != groupId)
                continue;
            for (CFxUIPullDownMenu* each : group->GetPullDownMenus()) {
                if (each->GetIdentifier().toQString() == menuId)
                    return each;
            }
        }
        return nullptr;
    }

    // The identifier of the menu that the look-up finds for `asked`.
    static QString found(const char* asked)
    {
        const CFxUIPullDownMenu* menu = HostMenuHelpers::findHelpMenu(CFxString(asked));
        return menu ? menu->GetIdentifier().toQString() : kNone;
    }
};

// Kept: docs/lifecycle.md, row "Look-up rules".
TEST_F(HelpMenuLookupTest, OnlyTheExactHelpMenuIdentifierFindsAMenu)
{
    useProfile(EC_SOURCE_DIR "/host/profiles/default.json");
    const CFxUIPullDownMenu* help = menu("QUILLON", "ID_MnHelp");
    const CFxUIPullDownMenu* file = menu("QUILLON", "ID_MnFile");
    ASSERT_NE(help, nullptr);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(HostMenuHelpers::findHelpMenu(CFxString("ID_MnHelp")), help);
    for (const char* other :
         {"ID_MNHELP", "id_mnhelp", "Id_MnHelp", "ID_MnHelp ", "ID_MnFile", "ID_MnTools", ""})
        EXPECT_EQ(found(other), kNone) << "asked for \"" << other << '"';

    const CFxString fileItem = file->GetEntries().GetAt(0)->GetIdentifier();
    const CFxString helpItem = help->GetEntries().GetAt(0)->GetIdentifier();
    EXPECT_TRUE(HostMenuHelpers::containsItem(CFxString("ID_MnHelp"),
                                              CFxString(helpItem.toQString().toLower())));
    EXPECT_FALSE(HostMenuHelpers::containsItem(CFxString("id_mnhelp"), helpItem));
    EXPECT_FALSE(HostMenuHelpers::containsItem(CFxString("ID_MnFile"), fileItem));
}

// Kept: docs/lifecycle.md, row "Look-up rules".
TEST_F(HelpMenuLookupTest, AHelpMenuWrittenInAnotherLetterCaseIsNoneAndTheReferenceGroupsIsSkipped)
{
    useProfile(EC_SOURCE_DIR "/tests/fixtures/profiles/no-exact-help-menu.json");
    ASSERT_NE(menu("MAIN", "ID_MNHELP"), nullptr);
    ASSERT_NE(menu("REFERENCE", "ID_MnHelp"), nullptr);
    for (const char* asked : {"ID_MnHelp", "ID_MNHELP"})
        EXPECT_EQ(found(asked), kNone) << "asked for \"" << asked << '"';
}
} // namespace
