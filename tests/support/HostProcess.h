#pragma once

#include "HomeFolders.h"
#include "RecordedEvents.h"

#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

// What one run of quillon-host did.
struct HostResult
{
    int exitCode = -1;
    // The lines of standard output, and the events read from them (in a run with --json).
    QStringList output;
    RecordedEvents events;
    QString standardError;
};

// Runs quillon-host from the build's stage folder with --json, in a home of its own, and
// reads its events.
class HostProcess
{
public:
    HostProcess();

    const HomeFolders& folders() const { return m_folders; }
    QString home() const { return m_folders.root(); }
    void setEnvironment(const QString& name, const QString& value)
    {
        m_environment.insert(name, value);
    }
    // Runs this copy of quillon-host instead of the stage's (a program folder of the test's own).
    void setProgram(const QString& program) { m_program = program; }
    // Runs quillon-host through `launcher` (a program and its arguments, the host's command
    // line following them), for example a private session bus's dbus-run-session.
    void setLauncher(const QStringList& launcher) { m_launcher = launcher; }

    HostResult run(const QStringList& arguments, int timeoutMs = 60000);
    HostResult runScript(const QString& script, const QStringList& arguments = {});
    // Runs without --json: the output is the host's readable lines.
    HostResult runReadable(const QStringList& arguments, int timeoutMs = 60000);

    static QString stageFolder() { return QStringLiteral(EC_STAGE_DIR); }
    static QString program() { return stageFolder() + QStringLiteral("/quillon-host"); }

private:
    QTemporaryDir m_temporary;
    HomeFolders m_folders;
    QProcessEnvironment m_environment;
    QString m_program = program();
    QStringList m_launcher;
};
