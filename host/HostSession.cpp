#include "HostSession.h"

#include "HostError.h"
#include "HostWindow.h"
#include "QuotedText.h"
#include "ScriptRunner.h"
#include "TranslationObserver.h"
#include "UrlRecorder.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QSettings>

#include <CFxCommandContext.h>
#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <CFxTextFile.h>
#include <CFxUIJsonReader.h>
#include <CFxUIJsonWriter.h>
#include <OdDbDxfDatabase.h>
#include <OdError.h>
#include <OdEventLog.h>
#include <OdHostCommandStack.h>
#include <OdHostDynamicLinker.h>
#include <OdStaticRxObject.h>

#if !defined(_WIN32)
#include <RegistryStandIn.h>
#endif

#include <cstdio>
#include <utility>

namespace {
#if !defined(_WIN32)
// A registry file that does not exist yet reads as empty and is made when a value is first
// written. One that exists must be one the registry can be read from: anything else would
// read as empty without a word (a device, a folder) or never (a pipe).
void checkRegistryFile(const QString& file)
{
    if (!QFileInfo::exists(file))
        return;
    QByteArray content;
    QString why;
    if (!CFxTextFile::read(file, content, why))
        throw HostError(
            QStringLiteral("registry %1: cannot be read: %2").arg(QuotedText::of(file), why));
}
#endif

// Modules find the registry stand-in through the environment, as they find the system's
// registry, so it is chosen before any module is loaded: `file`, or the default, so that a file
// chosen by whoever started the host does not count. Windows has the registry itself.
void useRegistryStandIn(const QString& file)
{
#if defined(_WIN32)
    Q_UNUSED(file);
#else
    const QString chosen =
        file.isEmpty() ? RegistryStandIn::defaultFile() : QFileInfo(file).absoluteFilePath();
    checkRegistryFile(chosen);
    RegistryStandIn::useFile(chosen);
#endif
}

// A file of the system that is made as it is read (in /proc, /sys) shows a size of 0 and yet
// holds text; a drawing read by its size would read as empty.
bool madeAsItIsRead(const QFileInfo& file)
{
    if (file.size() != 0)
        return false;
    QFile content(file.filePath());
    return content.open(QIODevice::ReadOnly) && !content.read(1).isEmpty();
}

// Why `path` cannot be opened as a document; empty when it can.
QString whyNoDocument(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QStringLiteral("no such file");
    const QString special = CFxTextFile::notRegularFile(path);
    if (!special.isEmpty())
        return special;
    if (madeAsItIsRead(file))
        return QStringLiteral("it is a file that the system makes as it is read (its size shows "
                              "as 0), not a stored drawing");
    return QString();
}
} // namespace

HostSession::HostSession(const HostOptions& options) : m_options(options) {}

HostSession::~HostSession()
{
    *m_alive = false;
}

QString HostSession::programFolder()
{
    return QCoreApplication::applicationDirPath();
}

void HostSession::start()
{
    CFxHostServices* services = GetFxHostServices();
    const int* version = m_options.productVersion;
    services->SetProductVersion(version[0], version[1], version[2], version[3]);
    services->SetCurrentLanguageId(m_options.languageId);
    std::vector<OdString> searchPath;
    for (const QString& folder : m_options.modulePath)
        searchPath.push_back(toOdString(QFileInfo(folder).absoluteFilePath()));
    if (searchPath.empty())
        searchPath.push_back(toOdString(programFolder()));
    odrxHostDynamicLinker()->setSearchPath(searchPath);
    services->SetInstallationId(installationId());
    useRegistryStandIn(m_options.registryFile);
    loadUiProfile();
    m_urls = std::make_unique<UrlRecorder>(m_options.refuseUrls);
    m_translations = std::make_unique<TranslationObserver>();
    m_viewerCalls.listen();
    for (const QString& module : m_options.modules)
        loadModule(module);
    m_translations->statementEnded();
}

QString HostSession::defaultUiProfile()
{
    return QStringLiteral(":/profiles/default.json");
}

void HostSession::loadUiProfile()
{
    auto ui = std::make_unique<CFxHostUI>();
    try {
        CFxUIJsonReader::readFile(
            m_options.uiProfile.isEmpty() ? defaultUiProfile() : m_options.uiProfile, *ui);
    } catch (const OdError& error) {
        throw HostError(
            QStringLiteral("UI profile %1")
                .arg(QuotedText::within(toQString(error.description()), {m_options.uiProfile})));
    }
    GetFxHostServices()->SetUI(std::move(ui));
}

QUuid HostSession::installationId()
{
    // Made once per user and kept, as an installer would record it.
    QSettings settings(QStringLiteral("Corvane"), QStringLiteral("Quillon"));
    QUuid id(settings.value(QStringLiteral("Installation/Id")).toString());
    if (id.isNull()) {
        id = QUuid::createUuid();
        settings.setValue(QStringLiteral("Installation/Id"), id.toString());
    }
    return id;
}

void HostSession::shutdown()
{
    if (m_mainFrame)
        destroyMainFrame();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    odrxHostDynamicLinker()->unloadAll();
}

void HostSession::WindowDeleter::operator()(HostWindow* window) const
{
    // The window may be going because of its own command line: let its signal finish first.
    window->hide();
    window->deleteLater();
}

void HostSession::setWindowHandlers(std::function<void(const QString&)> commandLine,
                                    std::function<void()> windowGone)
{
    m_onCommandLine = std::move(commandLine);
    m_onClose = std::move(windowGone);
    if (m_urls)
        m_urls->setForwarding(static_cast<bool>(m_onCommandLine));
}

void HostSession::createMainFrame()
{
    // The host tells its reactors of every creation request; a second one without a destroy
    // reaches them again, with the same window.
    if (!m_mainFrame) {
        m_mainFrame.reset(new HostWindow);
        m_mainFrame->setCompletionSource(&HostSession::completions);
        if (m_onCommandLine) {
            QObject::connect(m_mainFrame.get(), &HostWindow::commandLineEntered, m_onCommandLine);
            QObject::connect(m_mainFrame.get(), &HostWindow::closeRequested,
                             [this] { destroyMainFrame(); });
            m_mainFrame->show();
        }
        if (CFxHostUI* ui = GetFxHostServices()->GetUI())
            ui->SetUpdateHandler([this] { scheduleRefresh(); });
    }
    GetFxHostServices()->MainFrameCreated(m_mainFrame.get());
    refreshWindow();
}

void HostSession::destroyMainFrame()
{
    if (!m_mainFrame)
        throw HostError(QStringLiteral("there is no main window to destroy"));
    GetFxHostServices()->MainFrameDestroyed(m_mainFrame.get());
    if (CFxHostUI* ui = GetFxHostServices()->GetUI())
        ui->SetUpdateHandler({});
    m_mainFrame.reset();
    if (m_onClose)
        m_onClose();
}

void HostSession::refreshWindow()
{
    m_refreshPending = false;
    if (!m_mainFrame)
        return;
    // Not only after an Update(): a module may change the model without asking (loading a
    // ribbon button does not), and the window compares what it shows with the model.
    if (const CFxHostUI* ui = GetFxHostServices()->GetUI())
        m_mainFrame->showModel(*ui);
    m_mainFrame->showDocument(ACTIVE_DOCUMENT);
}

void HostSession::scheduleRefresh()
{
    if (m_refreshPending)
        return;
    m_refreshPending = true;
    std::weak_ptr<bool> alive = m_alive;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [this, alive] {
            if (!alive.expired() && m_refreshPending)
                refreshWindow();
        },
        Qt::QueuedConnection);
}

QStringList HostSession::completions()
{
    QStringList names = ScriptRunner::statementKeywords();
    for (const OdEdCommand* command : odedHostRegCmds()->commands())
        names << toQString(command->localName()) << toQString(command->globalName());
    return names;
}

void HostSession::loadModule(const QString& name)
{
    try {
        odrxHostDynamicLinker()->loadModule(toOdString(name), false);
    } catch (const OdError& error) {
        throw HostError(QuotedText::within(toQString(error.description()), {name}));
    }
}

void HostSession::unloadModule(const QString& name)
{
    if (odrxHostDynamicLinker()->getModule(toOdString(name)).isNull())
        throw HostError(QStringLiteral("module %1 is not loaded").arg(QuotedText::of(name)));
    odrxHostDynamicLinker()->unloadModule(toOdString(name));
}

void HostSession::openDocument(const QString& path)
{
    if (path.isEmpty())
        throw HostError(QStringLiteral("cannot open a document: the path is empty"));
    const QString why = whyNoDocument(path);
    if (!why.isEmpty())
        throw HostError(QStringLiteral("cannot open %1: %2").arg(QuotedText::of(path), why));
    const QFileInfo file(path);
    OdDbDatabasePtr database;
    try {
        database = OdDbDxfDatabase::readFile(toOdString(file.absoluteFilePath()));
    } catch (const OdError& error) {
        std::fprintf(stderr, "quillon-host: warning: %s; it opens as a drawing never saved\n",
                     qUtf8Printable(QuotedText::within(toQString(error.description()),
                                                       {file.absoluteFilePath()})));
    }
    GetFxHostServices()->GetDocumentManager()->OpenDocument(file.absoluteFilePath(),
                                                            std::move(database));
}

void HostSession::activateDocument(int index)
{
    if (!GetFxHostServices()->GetDocumentManager()->ActivateDocument(index))
        throw HostError(QStringLiteral("there is no open document %1").arg(index));
}

void HostSession::closeDocument(int index)
{
    if (!GetFxHostServices()->GetDocumentManager()->CloseDocument(index))
        throw HostError(QStringLiteral("there is no open document %1").arg(index));
}

void HostSession::runCommandLine(const QString& name, const QStringList& answers)
{
    const CFxDocument* active = ACTIVE_DOCUMENT;
    OdStaticRxObject<CFxCommandContext> context(answers,
                                                active ? active->GetFxDatabase() : nullptr);
    bool found = false;
    try {
        found = odedHostRegCmds()->executeCommand(toOdString(name), &context);
    } catch (const OdError& error) {
        throw HostError(QStringLiteral("command %1: %2")
                            .arg(QuotedText::of(name),
                                 QuotedText::within(toQString(error.description()), answers)));
    }
    if (!found) {
        OdEventLog::report(QStringLiteral("unknown-command"), {{QStringLiteral("name"), name}});
        return;
    }
    const std::optional<int> result = context.result();
    OdEventLog::report(QStringLiteral("command-ended"),
                       {{QStringLiteral("name"), name},
                        {QStringLiteral("result"), result ? QJsonValue(*result) : QJsonValue()}});
}

void HostSession::reportUi()
{
    // Written as text while the model is walked: a model nested thousands deep would take
    // memory growing with the square of its depth as a QJsonObject, and Qt's writer recurses.
    const CFxHostUI* ui = GetFxHostServices()->GetUI();
    OdEventLog::report(QStringLiteral("ui"), {}, QStringLiteral("model"), [ui](bool compact) {
        return ui ? CFxUIJsonWriter::writeText(*ui, compact)
                  : QByteArray(compact ? "{}" : "{\n}\n");
    });
}

void HostSession::reportCommands()
{
    QJsonArray names;
    for (const OdEdCommand* command : odedHostRegCmds()->commands())
        names.append(toQString(command->localName()));
    OdEventLog::report(QStringLiteral("commands"), {{QStringLiteral("names"), names}});
}

void HostSession::waitEvents()
{
    m_viewerCalls.flush();
}

void HostSession::screenshot(const QString& path)
{
    if (!m_mainFrame)
        throw HostError(QStringLiteral("there is no main window to take a picture of"));
    if (path.isEmpty())
        throw HostError(QStringLiteral("cannot write a picture: the path is empty"));
    // Writing would wait for ever for a reader of a pipe, and never reach a file in a device.
    const QString special = CFxTextFile::notRegularFile(path);
    if (!special.isEmpty())
        throw HostError(QStringLiteral("cannot write %1: %2").arg(QuotedText::of(path), special));
    if (!m_mainFrame->isVisible()) {
        m_mainFrame->setAttribute(Qt::WA_DontShowOnScreen, true);
        m_mainFrame->show();
    }
    refreshWindow();
    QCoreApplication::processEvents();
    if (!m_mainFrame->grab().save(path, "PNG"))
        throw HostError(QStringLiteral("cannot write %1").arg(QuotedText::of(path)));
    OdEventLog::report(QStringLiteral("file-written"),
                       {{QStringLiteral("path"), QFileInfo(path).absoluteFilePath()}});
}

void HostSession::settle()
{
    // The refresh asked for during the statement is done once, at its end.
    m_refreshPending = false;
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    odrxHostDynamicLinker()->unloadUnreferenced();
    if (m_translations)
        m_translations->statementEnded();
    refreshWindow();
}
