// quillon-host: the reference Quillon host program.
#include "CompanionSearch.h"
#include "EventPrinter.h"
#include "HostError.h"
#include "HostOptions.h"
#include "HostSession.h"
#include "HostWindow.h"
#include "QuotedText.h"
#include "ScriptRunner.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>

#include <CFxHostServices.h>
#include <CFxTextFile.h>
#include <OdEventLog.h>

#include <cstdio>

namespace {
// The operating system's locale, as QLocale::system() will read it.
void applySystemLocale(const QString& name)
{
    if (name.isEmpty())
        return;
    const QByteArray value =
        (name == QLatin1String("C") ? QStringLiteral("C") : name).toLatin1() + ".UTF-8";
    qputenv("LC_ALL", value);
    qputenv("LANG", value);
    qunsetenv("LANGUAGE");
}

QString readScript(const QString& path)
{
    QByteArray content;
    QString error;
    if (!CFxTextFile::read(path, content, error))
        throw HostError(
            QStringLiteral("cannot read script %1: %2").arg(QuotedText::of(path), error));
    return QString::fromUtf8(content);
}

bool displayAvailable()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

// The window: the user works in it until it is closed. Errors of what the user types are
// reported and the session goes on.
bool runWindow(HostSession& session, ScriptRunner& runner, EventPrinter& printer)
{
    session.setWindowHandlers([&runner](const QString& line) { runner.run(line, QDir::current()); },
                              [] { QCoreApplication::quit(); });
    GetFxHostServices()->SetMessageBoxHandler(
        [&session](const QString& text, const QString& caption, int) {
            QMessageBox::information(session.mainFrame(), caption, text);
            return 1;
        });
    session.createMainFrame();
    printer.setEcho([&session](const QString& line) {
        if (session.mainFrame())
            session.mainFrame()->appendLog(line);
    });
    QApplication::exec();
    printer.setEcho({});
    GetFxHostServices()->SetMessageBoxHandler({});
    return true;
}

int runSession(const HostOptions& options, EventPrinter& printer, bool windowMode)
{
    HostSession session(options);
    ScriptRunner runner(session, printer);
    bool ok = false;
    try {
        session.start();
        if (windowMode)
            ok = runWindow(session, runner, printer);
        else if (options.scriptText)
            ok = runner.run(*options.scriptText, QDir::current());
        else if (!options.scriptFile.isEmpty())
            ok = runner.run(readScript(options.scriptFile),
                            QFileInfo(options.scriptFile).absoluteDir());
        else
            ok = runner.run(readScript(QStringLiteral(":/demo/demo.qs")),
                            QDir(HostSession::programFolder() + QStringLiteral("/demo")));
    } catch (const HostError& error) {
        OdEventLog::report(QStringLiteral("error"), {{QStringLiteral("message"), error.message()}});
        std::fprintf(stderr, "quillon-host: %s\n", qUtf8Printable(error.message()));
    }
    session.shutdown();
    return ok ? 0 : 1;
}
} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    HostOptions options;
    QString companionFolder;
    try {
        QString helpText;
        bool exitEarly = false;
        options = HostOptions::parse(arguments, helpText, exitEarly);
        if (exitEarly) {
            std::fputs(qUtf8Printable(helpText), stdout);
            return 0;
        }
        companionFolder = CompanionSearch::folder(options.companionPath);
    } catch (const HostError& error) {
        std::fprintf(stderr, "quillon-host: %s\nTry 'quillon-host --help'.\n",
                     qUtf8Printable(error.message()));
        return 2;
    }
    // Before anything else: on Linux this may start the program again, with the same arguments.
    try {
        CompanionSearch::arrange(companionFolder, argv);
    } catch (const HostError& error) {
        std::fprintf(stderr, "quillon-host: %s\n", qUtf8Printable(error.message()));
        return 1;
    }
    applySystemLocale(options.locale);
    const bool windowMode =
        !options.demo && !options.scriptText && options.scriptFile.isEmpty() && displayAvailable();
    if (!windowMode && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillon"));
    QApplication::setOrganizationName(QStringLiteral("Corvane"));
    EventPrinter printer(options.json, stdout);
    OdEventLog::setSink(&printer);
    const int exitCode = runSession(options, printer, windowMode);
    OdEventLog::setSink(nullptr);
    return exitCode;
}
