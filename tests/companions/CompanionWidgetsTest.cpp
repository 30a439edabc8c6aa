// The companions in a real main window, in this process: what each puts into the window, what
// goes with the window or with a connector, and that the module and the connectors unload
// cleanly however the window and the modules go.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestStrings.h"

#include <QDockWidget>
#include <QFile>
#include <QLibrary>
#include <QMainWindow>
#include <QRegExp>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <gtest/gtest.h>

#include <CFxCommandContext.h>
#include <CFxRegistry.h>
#include <CFxSystemServices.h>
#include <OdEdCommandStack.h>
#include <OdRxDynamicLinker.h>
#include <OdSharedLibrary.h>

#include <memory>
#include <optional>

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
    for (const QDockWidget* dock : window.findChildren<QDockWidget*>()) {
        if (window.dockWidgetArea(const_cast<QDockWidget*>(dock)) == Qt::RightDockWidgetArea)
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
    odedRegCmds()->executeCommand(OdString(command), &context);
}

bool moduleLoaded(const OdString& name)
{
    return !odrxDynamicLinker()->getModule(name).isNull();
}

class CompanionWidgetsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        LoadedModule::useFolder();
        CFxRegistry::setStandInFile(m_registry.filePath(QStringLiteral("registry.ini")));
        m_savedId = GetFxSystemServices()->GetInstallationId();
        GetFxSystemServices()->SetInstallationId(m_installationId);
        m_module.emplace();
    }

    void TearDown() override
    {
        if (m_mainFrameOpen)
            destroy();
        m_window.reset();
        m_module.reset();
        // The linker keeps the collaboration connector until shut-down; this test is one.
        if (moduleLoaded(kOmniplaneModule))
            odrxDynamicLinker()->unloadModule(kOmniplaneModule);
        odrxDynamicLinker()->unloadUnreferenced();
        EXPECT_FALSE(moduleLoaded(kForgeportModule));
        GetFxSystemServices()->SetInstallationId(m_savedId);
        CFxRegistry::setStandInFile(QString());
    }

    void enableCollaboration()
    {
        QSettings(CFxRegistry::standInFile(), QSettings::IniFormat)
            .setValue(QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/"
                                     "OmniplaneCSEnable"),
                      true);
    }

    QMainWindow& create()
    {
        if (!m_window)
            m_window = std::make_unique<QMainWindow>();
        m_mainFrameOpen = true;
        GetFxSystemServices()->MainFrameCreated(m_window.get());
        return *m_window;
    }

    // As the host does: the reactors hear of it, then the window goes.
    void destroy(bool deleteWindow = true)
    {
        m_mainFrameOpen = false;
        GetFxSystemServices()->MainFrameDestroyed(m_window.get());
        if (deleteWindow)
            m_window.reset();
    }

    IsolatedHome m_home;
    QTemporaryDir m_registry;
    EventRecorder m_events;
    const QUuid m_installationId = QUuid::createUuid();
    QUuid m_savedId;
    std::optional<LoadedModule> m_module;
    std::unique_ptr<QMainWindow> m_window;
    bool m_mainFrameOpen = false;
};

TEST_F(CompanionWidgetsTest, EachCompanionDocksItsViewInTheMainWindow)
{
    enableCollaboration();
    QMainWindow& window = create();
    EXPECT_EQ(dockNames(window), QStringList({kForgeport, kOmniplane, kQuestions, kPane}));
    // One tab area on the right for all of them.
    EXPECT_EQ(window.tabifiedDockWidgets(dock(window, kPane)).size(), 3);
    const auto* page = dock(window, kPane)->findChild<QTextBrowser*>();
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->toPlainText().contains(m_installationId.toString()));
    EXPECT_TRUE(page->toPlainText().contains(QStringLiteral("ENT")));
    // Styled with the sheet that the module carries.
    QFile sheet(QStringLiteral(":/images/BFResources/taskpaneStyles.css"));
    ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
    EXPECT_EQ(page->document()->defaultStyleSheet(), QString::fromUtf8(sheet.readAll()));
}

TEST_F(CompanionWidgetsTest, DestroyTakesTheOnlineConnectorsViewAwayAtOnce)
{
    enableCollaboration();
    QMainWindow& window = create();
    destroy(false);
    EXPECT_EQ(dockNames(window), QStringList({kOmniplane, kQuestions, kPane}));
    EXPECT_TRUE(moduleLoaded(kForgeportModule));
}

TEST_F(CompanionWidgetsTest, HomeAndCommunityBringThePaneAndTheViewBack)
{
    QMainWindow& window = create();
    window.show();
    dock(window, kPane)->close();
    dock(window, kQuestions)->close();
    run(L"Home");
    EXPECT_TRUE(dock(window, kPane)->isVisible());
    EXPECT_FALSE(dock(window, kQuestions)->isVisible());
    run(L"_Community");
    EXPECT_TRUE(dock(window, kQuestions)->isVisible());
}

TEST_F(CompanionWidgetsTest, AConnectorUnloadedWhileTheWindowStandsTakesItsViewWithIt)
{
    enableCollaboration();
    QMainWindow& window = create();
    const QString path = qt(odrxDynamicLinker()->getModule(kOmniplaneModule)->moduleName());
    ASSERT_TRUE(odrxDynamicLinker()->unloadModule(kOmniplaneModule));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(path)));
    EXPECT_EQ(dock(window, kOmniplane), nullptr);
    // The window is still whole: laying it out and painting it reach no unloaded code.
    window.show();
    EXPECT_FALSE(window.grab().isNull());
}

TEST_F(CompanionWidgetsTest, ASecondMainWindowGetsDocksOfItsOwn)
{
    enableCollaboration();
    create();
    destroy();
    QMainWindow& second = create();
    EXPECT_EQ(dockNames(second), QStringList({kForgeport, kOmniplane, kQuestions, kPane}));
    // The collaboration connector stayed loaded: the second view comes from the same module.
    EXPECT_EQ(
        m_events.events().values("module-loaded", "module").count("QuillonOmniplaneConnector"), 1);
    // In the same window a second creation adds nothing twice.
    create();
    EXPECT_EQ(dockNames(second), QStringList({kForgeport, kOmniplane, kQuestions, kPane}));
}

TEST_F(CompanionWidgetsTest, WithoutAMainWindowTheCompanionsAreCalledAndShowNothing)
{
    enableCollaboration();
    GetFxSystemServices()->MainFrameCreated(nullptr);
    run(L"Home");
    run(L"Community");
    GetFxSystemServices()->MainFrameDestroyed(nullptr);
    EXPECT_EQ(
        m_events.events().values("companion-call", "call").filter(QRegExp("^(add|remove|show)")),
        QStringList({"addiQuestionView", "addQNOmniplaneView", "addXmlTodxf", "addTaskPane",
                     "showTaskPane", "showiQuestionView", "removeXmlTodxf"}));
    EXPECT_EQ(m_events.events().count("message-box"), 0);
}

TEST_F(CompanionWidgetsTest, TheViewcastNoticeJoinsThePaneOrComesAsAMessage)
{
    // What the publish command calls when the viewer is missing, reached as its import does.
    QLibrary library(LoadedModule::stageFolder() + QStringLiteral("/TarnTaskPane"));
    const auto showNotice =
        reinterpret_cast<void (*)()>(library.resolve("TarnTaskPane_showViewcastMeassage"));
    ASSERT_NE(showNotice, nullptr) << library.errorString().toStdString();

    showNotice();
    const auto messages = m_events.events().named(QStringLiteral("message-box"));
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages[0].field(QStringLiteral("caption")), QStringLiteral("Viewcast"));
    const QString notice = messages[0].field(QStringLiteral("text"));
    EXPECT_TRUE(notice.contains(QStringLiteral("Viewcast viewer")));

    QMainWindow& window = create();
    window.show();
    auto* page = dock(window, kPane)->findChild<QTextBrowser*>();
    ASSERT_NE(page, nullptr);
    EXPECT_FALSE(page->toPlainText().contains(notice));
    dock(window, kQuestions)->raise();
    showNotice();
    EXPECT_EQ(m_events.events().count(QStringLiteral("message-box")), 1);
    EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Viewcast")));
    EXPECT_TRUE(page->toPlainText().contains(notice));
    EXPECT_TRUE(page->isVisible());
}

TEST(CompanionReload, TheModuleAndItsConnectorsUnloadCleanlyCycleAfterCycle)
{
    IsolatedHome home;
    QTemporaryDir registry;
    CFxRegistry::setStandInFile(registry.filePath(QStringLiteral("registry.ini")));
    QSettings(CFxRegistry::standInFile(), QSettings::IniFormat)
        .setValue(QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/"
                                 "OmniplaneCSEnable"),
                  true);
    LoadedModule::useFolder();
    EventRecorder events;
    for (int cycle = 0; cycle < 20; ++cycle) {
        QMainWindow window;
        {
            LoadedModule module;
            GetFxSystemServices()->MainFrameCreated(&window);
            // Every other cycle the window is painted, docks and all.
            if (cycle % 2 == 0)
                window.grab();
            GetFxSystemServices()->MainFrameDestroyed(&window);
            ASSERT_TRUE(moduleLoaded(kForgeportModule)) << "cycle " << cycle;
        }
        odrxDynamicLinker()->unloadUnreferenced();
        ASSERT_FALSE(moduleLoaded(kForgeportModule)) << "cycle " << cycle;
        ASSERT_TRUE(window.findChild<QDockWidget*>(kOmniplane)) << "cycle " << cycle;
        ASSERT_TRUE(odrxDynamicLinker()->unloadModule(kOmniplaneModule)) << "cycle " << cycle;
        ASSERT_EQ(window.findChild<QDockWidget*>(kOmniplane), nullptr) << "cycle " << cycle;
        ASSERT_EQ(window.findChild<QDockWidget*>(kForgeport), nullptr) << "cycle " << cycle;
    }
    EXPECT_EQ(events.events().values("module-unloaded", "module").count("QNTForgeportConnector"),
              20);
    CFxRegistry::setStandInFile(QString());
}
} // namespace
