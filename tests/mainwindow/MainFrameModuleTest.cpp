// The module's main-window work in an in-process host: the real module loaded through the
// platform's dynamic linker into a host whose user interface comes from a profile.
#include "EventRecorder.h"
#include "LoadedModule.h"
#include "UiModel.h"

#include <gtest/gtest.h>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <CFxUIJsonReader.h>
#include <OdEdCommandStack.h>

#include <memory>

namespace {
// The default profile's main group; the small profiles call theirs "MAIN".
const QString kQuillon = QStringLiteral("QUILLON");
const QString kMain = QStringLiteral("MAIN");
const QString kCheck = QStringLiteral("ID_CHECKFORUPDATES");
const QString kNotes = QStringLiteral("ID_RELEASENOTES");
const QString kSeparator = QStringLiteral("ID_SEPARATOR");
// The module's block in the ribbon's system menu.
const QStringList kBlock{kSeparator, QStringLiteral("Check for Updates... -> CHECKFORUPDATES"),
                         QStringLiteral("Quillon Release Notes... -> RELEASENOTES"), kSeparator};

// The default profile's system menu with the module's block `blocks` times.
QStringList systemMenuWithBlocks(int blocks)
{
    QStringList entries{QStringLiteral("RSYS_HELP"), QStringLiteral("RSYS_SUPPORT")};
    for (int i = 0; i < blocks; ++i)
        entries += kBlock;
    return entries << QStringLiteral("RSYS_ABOUT");
}

QString profilePath(const QString& name)
{
    return name == QLatin1String("default")
               ? QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json")
               : QStringLiteral(EC_SOURCE_DIR "/tests/fixtures/profiles/") + name +
                     QStringLiteral(".json");
}

bool commandKnown(const wchar_t* name)
{
    return odedRegCmds()->lookupCmd(OdString(name)) != nullptr;
}

class MainFrameTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        useProfile(QStringLiteral("default"));
        m_module = std::make_unique<LoadedModule>();
        m_events.clear();
    }

    void TearDown() override
    {
        // As the host does: the window goes before the modules, and with it what the module
        // lent for the window's sake (its Help-menu commands).
        if (m_mainFrameOpen)
            destroy();
        m_module.reset();
        GetFxSystemServices()->SetUI(nullptr);
    }

    static void useProfile(const QString& name)
    {
        auto ui = std::make_unique<CFxUI>();
        CFxUIJsonReader::readFile(profilePath(name), *ui);
        GetFxSystemServices()->SetUI(std::move(ui));
    }

    void create()
    {
        m_mainFrameOpen = true;
        GetFxSystemServices()->MainFrameCreated(nullptr);
    }

    void destroy()
    {
        m_mainFrameOpen = false;
        GetFxSystemServices()->MainFrameDestroyed(nullptr);
    }

    static UiModel model() { return UiModel::of(*GetFxSystemServices()->GetUI()); }
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
    EXPECT_EQ(after.menuEntryIds(QStringLiteral("QUILLON_REFERENCE")),
              before.menuEntryIds(QStringLiteral("QUILLON_REFERENCE")));
    EXPECT_EQ(after.groupItems(kQuillon), before.groupItems(kQuillon) << kCheck << kNotes);
    EXPECT_EQ(after.systemMenu(), systemMenuWithBlocks(1));
    EXPECT_EQ(m_events.events().values("command-added", "name"),
              QStringList({"_RELEASENOTES", "_CHECKFORUPDATES"}));
}

TEST_F(MainFrameTest, DestroyTakesOutTheHelpEntriesAndCommandsOnly)
{
    const QStringList hostHelp = help(kQuillon);
    create();
    const UiModel created = model();
    m_events.clear();
    destroy();
    EXPECT_EQ(help(kQuillon), hostHelp);
    EXPECT_FALSE(commandKnown(L"CHECKFORUPDATES"));
    EXPECT_FALSE(commandKnown(L"RELEASENOTES"));
    EXPECT_EQ(model().systemMenu(), created.systemMenu());
    EXPECT_EQ(model().groupItems(kQuillon), created.groupItems(kQuillon));
    EXPECT_EQ(m_events.events().describe({"command-removed", "module-unload-deferred"}, "name"),
              QStringList({"command-removed:_CHECKFORUPDATES", "command-removed:_RELEASENOTES",
                           "module-unload-deferred"}));
    // The online connector is installed beside the program: it is asked to go, and goes once
    // the reactor's reference to it goes with the module.
    EXPECT_EQ(m_events.events().values("module-unload-deferred", "module"),
              QStringList{"QNTForgeportConnector"});
}

TEST_F(MainFrameTest, CreateAndDestroyTwiceLeavesNoHelpEntryBehind)
{
    const QStringList hostHelp = help(kQuillon);
    create();
    const QStringList first = help(kQuillon);
    destroy();
    create();
    EXPECT_EQ(help(kQuillon), first);
    destroy();
    EXPECT_EQ(help(kQuillon), hostHelp);
    EXPECT_FALSE(commandKnown(L"CHECKFORUPDATES"));
    EXPECT_EQ(m_events.events().count("command-added"), 4);
    EXPECT_EQ(m_events.events().count("command-removed"), 4);
    EXPECT_EQ(model().systemMenu(), systemMenuWithBlocks(2));
}

TEST_F(MainFrameTest, SecondCreateAddsNoHelpEntryButAnotherSystemMenuBlock)
{
    create();
    const QStringList first = help(kQuillon);
    create();
    EXPECT_EQ(help(kQuillon), first);
    EXPECT_EQ(m_events.events().count("command-added"), 2);
    EXPECT_EQ(model().systemMenu(), systemMenuWithBlocks(2));
}

TEST_F(MainFrameTest, WithoutOnlineSupportTheEntriesStayAtTheEndInCreationOrder)
{
    useProfile(QStringLiteral("no-online-support"));
    create();
    EXPECT_EQ(help(kMain), QStringList({"PMI_300", "PMI_340", kCheck, kNotes}));
}

TEST_F(MainFrameTest, AnEmptyHelpMenuGetsTheEntriesAndLosesThemAgain)
{
    useProfile(QStringLiteral("empty-help"));
    create();
    EXPECT_EQ(help(kMain), QStringList({kCheck, kNotes}));
    destroy();
    EXPECT_EQ(help(kMain), QStringList());
}

TEST_F(MainFrameTest, WithoutTheAboutEntryTheSystemMenuStaysAsItWas)
{
    useProfile(QStringLiteral("no-about"));
    const QStringList systemMenu = model().systemMenu();
    create();
    EXPECT_EQ(model().systemMenu(), systemMenu);
    EXPECT_EQ(help(kMain), QStringList({"PMI_300", "PMI_330", kCheck, kNotes}));
}

TEST_F(MainFrameTest, OnlyAMenuCalledExactlyIdMnHelpOutsideTheReferenceGroupIsTheHelpMenu)
{
    useProfile(QStringLiteral("no-exact-help-menu"));
    const UiModel before = model();
    create();
    const UiModel after = model();
    EXPECT_EQ(after.menuEntryIds(QStringLiteral("REFERENCE")),
              before.menuEntryIds(QStringLiteral("REFERENCE")));
    EXPECT_EQ(after.menuEntryIds(kMain, QStringLiteral("ID_MNHELP")),
              before.menuEntryIds(kMain, QStringLiteral("ID_MNHELP")));
    // The rest of the work is done all the same.
    EXPECT_TRUE(commandKnown(L"CHECKFORUPDATES"));
    EXPECT_EQ(after.systemMenu(), QStringList("RSYS_HELP") + kBlock << "RSYS_ABOUT");
}

TEST_F(MainFrameTest, LookalikeItemsAreMatchedWithoutCaseAndRemovedByTextInOnePass)
{
    useProfile(QStringLiteral("lookalike-help"));
    create();
    // "id_CheckForUpdates" counts as the update-check entry: only the release notes are added.
    EXPECT_EQ(help(kMain), QStringList({"PMI_300", "id_CheckForUpdates", "PMI_901", "PMI_902",
                                        "PMI_330", kNotes}));
    destroy();
    // Everything with the release notes' text goes, except the item that moved into the place
    // of its removed neighbour.
    EXPECT_EQ(help(kMain), QStringList({"PMI_300", "id_CheckForUpdates", "PMI_902", "PMI_330"}));
}
} // namespace
