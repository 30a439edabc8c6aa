#include "HostProcess.h"

#include <QJsonDocument>
#include <QProcess>

namespace {
// CTest starts this program with the stage folder first on the library search path, standing in
// for the host; a host started by a user has it arranged by nothing but its own options.
void dropStageFromSearchPath(QProcessEnvironment& environment)
{
    const QString name = QStringLiteral("LD_LIBRARY_PATH");
    QStringList folders = environment.value(name).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    folders.removeAll(HostProcess::stageFolder());
    if (folders.isEmpty())
        environment.remove(name);
    else
        environment.insert(name, folders.join(QLatin1Char(':')));
}
} // namespace

HostProcess::HostProcess()
    : m_folders(m_temporary.path()), m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const auto& variable : m_folders.variables())
        m_environment.insert(variable.first, variable.second);
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // No session bus unless a test starts one of its own.
    m_environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    dropStageFromSearchPath(m_environment);
}

HostResult HostProcess::runReadable(const QStringList& arguments, int timeoutMs)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(home());
    const QStringList command = m_launcher + QStringList{m_program} + arguments;
    process.start(command.first(), command.mid(1));
    HostResult result;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        result.standardError = QStringLiteral("quillon-host did not finish in time");
        return result;
    }
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.standardError = QString::fromUtf8(process.readAllStandardError());
    result.output =
        QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    return result;
}

HostResult HostProcess::run(const QStringList& arguments, int timeoutMs)
{
    HostResult result = runReadable(QStringList{QStringLiteral("--json")} + arguments, timeoutMs);
    for (const QString& line : result.output) {
        QJsonObject fields = QJsonDocument::fromJson(line.toUtf8()).object();
        const QString name = fields.take(QStringLiteral("event")).toString();
        result.events.append(
            {name.isEmpty() ? QStringLiteral("<not json: %1>").arg(line) : name, fields});
    }
    return result;
}

HostResult HostProcess::runScript(const QString& script, const QStringList& arguments)
{
    return run(arguments + QStringList{QStringLiteral("-c"), script});
}
