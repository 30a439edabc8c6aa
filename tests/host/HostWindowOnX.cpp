#include "HostWindowOnX.h"

#include "HostOptions.h"
#include "HostSession.h"
#include "HostWindow.h"
#include "ScriptRunner.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

#include <CFxHostDocumentManager.h>
#include <CFxHostServices.h>

HostWindowOnX::HostWindowOnX() = default;

HostWindowOnX::~HostWindowOnX() = default;

void HostWindowOnX::SetUp()
{
    HostOptions options;
    options.modules = startModules();
    options.modulePath = QStringList{QStringLiteral(EC_STAGE_DIR)};
    options.registryFile = m_home.path() + QStringLiteral("/registry.ini");
    options.uiProfile = QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json");
    m_session = std::make_unique<HostSession>(options);
    m_runner = std::make_unique<ScriptRunner>(*m_session, m_printer);
    m_session->start();
    if (windowIsTheCommandLine())
        m_session->setWindowHandlers([this](const QString& line) { run(line); },
                                     [this] {
                                         m_windowGone = true;
                                         QCoreApplication::quit();
                                     });
    m_session->createMainFrame();
    if (windowIsTheCommandLine())
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window()));
}

void HostWindowOnX::TearDown()
{
    m_session->shutdown();
    GetFxHostServices()->GetDocumentManager()->CloseAll();
    std::fclose(m_discarded);
}

QStringList HostWindowOnX::startModules() const
{
    return {QStringLiteral("ExtCommands")};
}

bool HostWindowOnX::windowIsTheCommandLine() const
{
    return true;
}

HostWindow* HostWindowOnX::window() const
{
    return m_session->mainFrame();
}

const CFxHostUI& HostWindowOnX::ui() const
{
    return *GetFxHostServices()->GetUI();
}

void HostWindowOnX::run(const QString& statement)
{
    m_runner->run(statement, QDir(m_home.path()));
}

QStringList HostWindowOnX::commandLinesRun() const
{
    QStringList lines =
        m_events.events().values(QStringLiteral("command-ended"), QStringLiteral("name"));
    lines << m_events.events().values(QStringLiteral("unknown-command"), QStringLiteral("name"));
    return lines;
}
