// The companions in a real main window, in this process: what each puts into the window, and
// what goes with the window or with a connector.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxCommandContext.h>
#include <CFxHostServices.h>
#include <OdHostCommandStack.h>
#include <OdHostDynamicLinker.h>
#include <OdSharedLibrary.h>
#include <RegistryStandIn.h>

#include <memory>

namespace {
const QString kPane = QStringLiteral("TarnTaskPane");
const QString kQuestions = QStringLiteral("QuestionView");
const QString kOmniplane = QStringLiteral("OmniplaneView");
const QString kForgeport = QStringLiteral("ForgeportView");
const OdString kOmniplaneModule(L"QuillonOmniplaneConnector");
const OdString kForgeportModule(L"QNTForgeportConnector");

QStringList dockNames(const QMainWindow& window)
{
    QStringList names;
    for (QDockWidget* dock : window.findChildren<QDockWidget*>()) {
        if (window.dockWidgetArea(dock) == Qt::RightDockWidgetArea)
            names << dock->objectName();
    }
    names.sort();
    return names;
}

QDockWidget* dock(const QMainWindow& window, const QString& name)
{
    return window.findChild<QDockWidget*>(name);
}

void run(const wchar_t* command)
{
    OdStaticRxObject<CFxCommandContext> context(QStringList{}, nullptr);
    odedHostRegCmds()->executeCommand(OdString(command), &context);
}

bool moduleLoaded(const OdString& name)
{
    return !odrxHostDynamicLinker()->getModule(name).isNull();
}

// ExtCommands loaded from the stage, with the collaboration connector switched on.
class CompanionWidgetsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        RegistryStandIn::useFile(m_registry.filePath(QStringLiteral("registry.ini")));
        QSettings(RegistryStandIn::file(), QSettings::IniFormat)
            .setValue(QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/"
                                     "OmniplaneCSEnable"),
                      true);
        m_window = std::make_unique<QMainWindow>();
        GetFxHostServices()->MainFrameCreated(m_window.get());
    }

    void TearDown() override
    {
        if (m_window)
            GetFxHostServices()->MainFrameDestroyed(m_window.get());
        m_window.reset();
        m_module.unload();
        // The linker keeps the collaboration connector until shut-down; this test is one.
        if (moduleLoaded(kOmniplaneModule))
            odrxHostDynamicLinker()->unloadModule(kOmniplaneModule);
        EXPECT_FALSE(moduleLoaded(kForgeportModule));
        RegistryStandIn::useFile(QString());
    }

    IsolatedHome m_home;
    QTemporaryDir m_registry;
    EventRecorder m_events;
    LoadedModule m_module;
    std::unique_ptr<QMainWindow> m_window;
};

TEST_F(CompanionWidgetsTest, EachCompanionDocksItsViewAndHomeAndCommunityBringThemBack)
{
    QMainWindow& window = *m_window;
    EXPECT_TRUE(window.findChildren<QDockWidget*>().isEmpty())
        << "a window that is not on screen costs the companions no docks";
    // Asked for before the window shows: the question view is in front when it shows.
    run(L"_Community");
    window.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(dockNames(window), QStringList({kForgeport, kOmniplane, kQuestions, kPane}));
    // One tab area on the right for all of them.
    EXPECT_EQ(window.tabifiedDockWidgets(dock(window, kPane)).size(), 3);
    QStringList built;
    for (const QString& name : dockNames(window)) {
        if (dock(window, name)->widget())
            built << name;
    }
    EXPECT_EQ(built, QStringList({kQuestions}))
        << "the front tab shows its view; the others wait until chosen";
    dock(window, kPane)->close();
    dock(window, kQuestions)->close();
    run(L"Home");
    EXPECT_TRUE(dock(window, kPane)->isVisible());
    EXPECT_FALSE(dock(window, kQuestions)->isVisible());
    run(L"_Community");
    EXPECT_TRUE(dock(window, kQuestions)->isVisible());
    EXPECT_NE(dock(window, kQuestions)->widget(), nullptr);
    EXPECT_NE(dock(window, kPane)->widget(), nullptr);
}

// A window shown before the companions come builds their docks at once; the front tab, the
// last one added, builds its view.
TEST_F(CompanionWidgetsTest, AWindowAlreadyOnScreenGetsTheDocksAtOnce)
{
    GetFxHostServices()->MainFrameDestroyed(m_window.get());
    m_window = std::make_unique<QMainWindow>();
    m_window->show();
    GetFxHostServices()->MainFrameCreated(m_window.get());
    QMainWindow& window = *m_window;
    EXPECT_EQ(dockNames(window), QStringList({kForgeport, kOmniplane, kQuestions, kPane}));
    QCoreApplication::processEvents();
    EXPECT_TRUE(dock(window, kPane)->isVisible());
    EXPECT_NE(dock(window, kPane)->widget(), nullptr);
}

// Kept: docs/lifecycle.md, rows "Question view", "Collaboration connector" and "Task pane".
TEST_F(CompanionWidgetsTest, AConnectorGoesWithItsViewWhileTheWindowStandsOrWithTheWindow)
{
    QMainWindow& window = *m_window;
    const QString path = qt(odrxHostDynamicLinker()->getModule(kOmniplaneModule)->moduleName());
    // Unloaded while its dock still waits for the window to show: nothing of it is left to
    // build, and showing the window reaches no unloaded code.
    ASSERT_TRUE(odrxHostDynamicLinker()->unloadModule(kOmniplaneModule));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(path)));
    window.show();
    EXPECT_EQ(dockNames(window), QStringList({kForgeport, kQuestions, kPane}));
    EXPECT_FALSE(window.grab().isNull());

    // The online connector's view goes with the window at once; the module waits for ExtCommands.
    GetFxHostServices()->MainFrameDestroyed(&window);
    EXPECT_EQ(dockNames(window), QStringList({kQuestions, kPane}));
    EXPECT_TRUE(moduleLoaded(kForgeportModule));
    m_window.reset();
}

// Kept: docs/lifecycle.md, rows "Companion libraries" and "Online connector".
TEST_F(CompanionWidgetsTest, TheModuleAndItsConnectorsUnloadCleanlyCycleAfterCycle)
{
    GetFxHostServices()->MainFrameDestroyed(m_window.get());
    m_window.reset();
    m_module.unload();
    m_events.clear();
    for (int cycle = 0; cycle < 10; ++cycle) {
        QMainWindow window;
        {
            LoadedModule module;
            GetFxHostServices()->MainFrameCreated(&window);
            window.show();
            window.grab(); // painted, docks and all
            GetFxHostServices()->MainFrameDestroyed(&window);
        }
        ASSERT_FALSE(moduleLoaded(kForgeportModule)) << "cycle " << cycle;
        ASSERT_TRUE(odrxHostDynamicLinker()->unloadModule(kOmniplaneModule)) << "cycle " << cycle;
        ASSERT_EQ(dockNames(window), QStringList({kQuestions, kPane})) << "cycle " << cycle;
    }
    EXPECT_EQ(m_events.events().values("module-unloaded", "module").count("QNTForgeportConnector"),
              10);
}
// The switches are read anew for each main window of one session: changed between two windows,
// the next one follows them.
TEST_F(CompanionWidgetsTest, SwitchesChangedBetweenTwoMainWindowsApplyToTheNextOne)
{
    const auto callsOfWindow = [this](bool collaboration, const QString& networkDisabled) {
        GetFxHostServices()->MainFrameDestroyed(m_window.get());
        QSettings(RegistryStandIn::file(), QSettings::IniFormat)
            .setValue(QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/"
                                     "OmniplaneCSEnable"),
                      collaboration);
        QSettings(m_home.folders().systemConfig() + QStringLiteral("/Corvane/Quillon.conf"),
                  QSettings::IniFormat)
            .setValue(QStringLiteral("Network/premiumnetworkdisable"), networkDisabled);
        m_events.clear();
        m_window = std::make_unique<QMainWindow>();
        GetFxHostServices()->MainFrameCreated(m_window.get());
        QStringList calls = m_events.events().values("companion-call", "call");
        calls.removeAll(QStringLiteral("addXmlTodxf"));
        return calls;
    };
    EXPECT_EQ(callsOfWindow(false, "YES "), QStringList());
    EXPECT_EQ(callsOfWindow(true, "no"),
              QStringList({"addiQuestionView", "addQNOmniplaneView", "addTaskPane"}));
    EXPECT_EQ(callsOfWindow(false, "no"), QStringList({"addiQuestionView", "addTaskPane"}));
}
} // namespace
