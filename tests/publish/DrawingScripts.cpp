#include "DrawingScripts.h"

#include <QProcess>
#include <QStringList>

#include <stdexcept>

namespace {
QString scriptPath(const QString& script)
{
    return QStringLiteral(EC_SOURCE_DIR "/tests/publish/") + script;
}
} // namespace

void DrawingScripts::make(const QString& folder)
{
    QString output;
    if (run(QStringLiteral("make-drawings.py"), {folder}, output) != 0)
        throw std::runtime_error("make-drawings.py failed: " + output.toStdString());
}

QString DrawingScripts::check(const QString& copy, const QString& source)
{
    QString output;
    const int exitCode = run(QStringLiteral("check-drawing.py"), {copy, source}, output);
    return exitCode == 0 ? QString() : QStringLiteral("exit %1: %2").arg(exitCode).arg(output);
}

int DrawingScripts::run(const QString& script, const QStringList& arguments, QString& output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("/usr/bin/python3"), QStringList{scriptPath(script)} + arguments);
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        output = QStringLiteral("did not finish: ") + process.errorString();
        return -1;
    }
    output = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}
