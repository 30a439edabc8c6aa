// The module's main-window work in an in-process host: the real module loaded through the
// platform's dynamic linker into a host whose user interface comes from a profile.
#include "EventRecorder.h"
#include "LoadedModule.h"
#include "TestPrinters.h"
#include "UiModel.h"

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <CFxUIJsonReader.h>
#include <OdHostCommandStack.h>

#include <memory>

namespace {
// The default profile's main group; the small profiles of the fixtures call theirs "MAIN".
const QString kQuillon = QStringLiteral("QUILLON");
const QString kMain = QStringLiteral("MAIN");
const QString kCheck = QStringLiteral("ID_CHECKFORUPDATES");
const QString kNotes = QStringLiteral("ID_RELEASENOTES");
// The module's block in the ribbon's system menu.
const QStringList kBlock{"ID_SEPARATOR", "Check for Updates... -> CHECKFORUPDATES",
                         "Quillon Release Notes... -> RELEASENOTES", "ID_SEPARATOR"};

// The default profile's system menu with the module's block `blocks` times.
QStringList systemMenuWithBlocks(int blocks)
{
    QStringList entries{"RSYS_HELP", "RSYS_SUPPORT"};
    for (int i = 0; i < blocks; ++i)
        entries += kBlock;
    return entries << "RSYS_ABOUT";
}

bool commandKnown(const wchar_t* name)
{
    return odedHostRegCmds()->lookupCmd(OdString(name)) != nullptr;
}

class MainFrameTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        useProfile(EC_SOURCE_DIR "/host/profiles/default.json");
        m_module = std::make_unique<LoadedModule>();
        m_events.clear();
    }

    void TearDown() override
    {
        // As the host does: the window goes before the modules.
        if (m_mainFrameOpen)
            destroy();
        m_module.reset();
        GetFxHostServices()->SetUI(nullptr);
    }

    static void useProfile(const QString& path)
    {
        auto ui = std::make_unique<CFxHostUI>();
        CFxUIJsonReader::readFile(path, *ui);
        GetFxHostServices()->SetUI(std::move(ui));
    }
    static void useFixture(const char* name)
    {
        useProfile(QStringLiteral(EC_SOURCE_DIR "/tests/fixtures/profiles/%1.json").arg(name));
    }

    void create()
    {
        m_mainFrameOpen = true;
        GetFxHostServices()->MainFrameCreated(nullptr);
    }

    void destroy()
    {
        m_mainFrameOpen = false;
        GetFxHostServices()->MainFrameDestroyed(nullptr);
    }

    static UiModel model() { return UiModel::of(*GetFxHostServices()->GetUI()); }
    static QStringList help(const QString& group) { return model().menuEntryIds(group); }

    EventRecorder m_events;
    std::unique_ptr<LoadedModule> m_module;
    bool m_mainFrameOpen = false;
};

TEST_F(MainFrameTest, CreatePlacesTheEntriesBehindOnlineSupportAndRegistersTheCommands)
{
    const UiModel before = model();
    create();
    const UiModel after = model();
    EXPECT_EQ(after.menuEntryIds(kQuillon),
              QStringList({"PMI_300", "PMI_310", "PMI_320", "PMI_330", kCheck, kNotes, "PMI_340"}));
    EXPECT_EQ(after.helpEntry(kQuillon, kCheck),
              QJsonObject({{"id", kCheck},
                           {"text", "Check for Updates..."},
                           {"statusText", "Check for Updates: CHECKFORUPDATES"},
                           {"macro", "CHECKFORUPDATES"}}));
    EXPECT_EQ(after.helpEntry(kQuillon, kNotes),
              QJsonObject({{"id", kNotes},
                           {"text", "Quillon Release Notes..."},
                           {"statusText", "Quillon Release Notes: RELEASENOTES"},
                           {"macro", "RELEASENOTES"}}));
    // The reference group comes first and has a Help menu too: it is never the one used.
    EXPECT_EQ(after.menuEntryIds("QUILLON_REFERENCE"), before.menuEntryIds("QUILLON_REFERENCE"));
    EXPECT_EQ(after.groupItems(kQuillon), before.groupItems(kQuillon) << kCheck << kNotes);
    EXPECT_EQ(after.systemMenu(), systemMenuWithBlocks(1));
    EXPECT_EQ(m_events.events().values("command-added", "name"),
              QStringList({"_RELEASENOTES", "_CHECKFORUPDATES"}));
}

// Kept: docs/lifecycle.md, rows "System-menu block", "Help menu items" and "Add-Ins tab and
// panel".
TEST_F(MainFrameTest, DestroyTakesOutOnlyTheHelpEntriesAndCommandsAndCreateAddsThemOnce)
{
    const QStringList hostHelp = help(kQuillon);
    const QStringList hostItems = model().groupItems(kQuillon);
    create();
    const QStringList created = help(kQuillon);
    create();
    EXPECT_EQ(help(kQuillon), created) << "a second creation adds no Help entry";
    EXPECT_EQ(m_events.events().count("command-added"), 2);
    const UiModel before = model();
    destroy();
    EXPECT_EQ(help(kQuillon), hostHelp);
    EXPECT_FALSE(commandKnown(L"CHECKFORUPDATES"));
    EXPECT_FALSE(commandKnown(L"RELEASENOTES"));
    EXPECT_EQ(model().systemMenu(), before.systemMenu());
    EXPECT_EQ(model().groupItems(kQuillon), before.groupItems(kQuillon));
    EXPECT_EQ(model().ribbonTabs(kQuillon), before.ribbonTabs(kQuillon));
    EXPECT_TRUE(before.ribbonTabs(kQuillon).contains("ID_RibbonAddInsTab"));

    create();
    EXPECT_EQ(help(kQuillon), created);
    destroy();
    EXPECT_EQ(help(kQuillon), hostHelp);
    EXPECT_EQ(
        m_events.events().values("command-removed", "name"),
        QStringList({"_CHECKFORUPDATES", "_RELEASENOTES", "_CHECKFORUPDATES", "_RELEASENOTES"}));
    EXPECT_EQ(m_events.events().count("command-added"), 4);
    EXPECT_EQ(model().systemMenu(), systemMenuWithBlocks(3)) << "a block for each creation";
    EXPECT_EQ(model().groupItems(kQuillon),
              hostItems + QStringList({kCheck, kNotes, kCheck, kNotes}))
        << "a pair of items for each creation that added the entries";
}

TEST_F(MainFrameTest, WithoutOnlineSupportTheEntriesStayAtTheEndInCreationOrder)
{
    useFixture("no-online-support");
    create();
    EXPECT_EQ(help(kMain), QStringList({"PMI_300", "PMI_340", kCheck, kNotes}));
    destroy();

    // A Help menu without any entry of its own gets just the module's two.
    useFixture("empty-help");
    create();
    EXPECT_EQ(help(kMain), QStringList({kCheck, kNotes}));
    EXPECT_TRUE(commandKnown(L"CHECKFORUPDATES"));
}

// The anchors "PMI_330" and "RSYS_ABOUT" are compared exactly: a look-alike in lower case is
// no anchor, so the Help entries stay at the end and the system menu gets nothing.
// Kept: docs/lifecycle.md, row "Look-up rules".
struct MissingAnchorCase
{
    const char* fixture;
    QStringList help;
};

// How failures and CTest name the case.
void PrintTo(const MissingAnchorCase& each, std::ostream* out)
{
    *out << each.fixture;
}

class MainFrameWithoutExactAnchors : public MainFrameTest,
                                     public ::testing::WithParamInterface<MissingAnchorCase>
{};

TEST_P(MainFrameWithoutExactAnchors, TheEntriesStayAtTheEndAndTheSystemMenuAsItWas)
{
    useFixture(GetParam().fixture);
    const QStringList systemMenu = model().systemMenu();
    create();
    EXPECT_EQ(model().systemMenu(), systemMenu);
    EXPECT_EQ(help(kMain), GetParam().help);
}

INSTANTIATE_TEST_SUITE_P(
    Profiles, MainFrameWithoutExactAnchors,
    ::testing::Values(MissingAnchorCase{"no-about", {"PMI_300", "PMI_330", kCheck, kNotes}},
                      MissingAnchorCase{"lowercase-anchors",
                                        {"PMI_300", "pmi_330", kCheck, kNotes}}));

// Kept: docs/lifecycle.md, row "Look-up rules".
TEST_F(MainFrameTest, OnlyAMenuCalledExactlyIdMnHelpOutsideTheReferenceGroupIsTheHelpMenu)
{
    useFixture("no-exact-help-menu");
    const UiModel before = model();
    create();
    const UiModel after = model();
    EXPECT_EQ(after.menuEntryIds("REFERENCE"), before.menuEntryIds("REFERENCE"));
    EXPECT_EQ(after.menuEntryIds(kMain, "ID_MNHELP"), before.menuEntryIds(kMain, "ID_MNHELP"));
    EXPECT_TRUE(commandKnown(L"CHECKFORUPDATES")) << "the rest of the work is done all the same";
    EXPECT_EQ(after.systemMenu(), QStringList("RSYS_HELP") + kBlock << "RSYS_ABOUT");
}

// Kept: docs/lifecycle.md, rows "One pass" and "Look-up rules".
TEST_F(MainFrameTest, LookalikeItemsAreMatchedWithoutCaseAndRemovedByTextInOnePass)
{
    useFixture("lookalike-help");
    create();
    // "id_CheckForUpdates" counts as the update-check entry: only the release notes are added.
    EXPECT_EQ(help(kMain), QStringList({"PMI_300", "id_CheckForUpdates", "PMI_901", "PMI_902",
                                        "PMI_903", "PMI_330", kNotes}));
    destroy();
    // Of the adjacent items with the release notes' text, the one that moved into the place of
    // its removed neighbour stays; the text in capitals is another text.
    EXPECT_EQ(help(kMain),
              QStringList({"PMI_300", "id_CheckForUpdates", "PMI_902", "PMI_903", "PMI_330"}));
}

// The module hears only of the windows made while it is loaded: a destroy without a create takes
// nothing out, a window that stood before the module came gets nothing, and what the module put
// into a window stays in the model when the module is unloaded before the window goes.
// Kept: docs/lifecycle.md, rows "Editor reactor" and "Help entries".
TEST_F(MainFrameTest, OnlyWindowsMadeWhileLoadedGetTheEntriesAndKeepThemAfterTheUnload)
{
    const UiModel host = model();
    destroy();
    EXPECT_EQ(help(kQuillon), host.menuEntryIds(kQuillon));
    EXPECT_EQ(model().systemMenu(), host.systemMenu());
    EXPECT_EQ(m_events.events().count("command-removed"), 0);

    m_module.reset();
    create();
    m_module = std::make_unique<LoadedModule>();
    EXPECT_EQ(help(kQuillon), host.menuEntryIds(kQuillon));
    EXPECT_EQ(model().systemMenu(), host.systemMenu());
    EXPECT_FALSE(commandKnown(L"CHECKFORUPDATES"));

    create();
    const UiModel created = model();
    ASSERT_NE(created.menuEntryIds(kQuillon), host.menuEntryIds(kQuillon));
    m_module.reset();
    EXPECT_EQ(model(), created) << "the whole model, the Add-Ins tab and the publish entry too";
}
} // namespace
