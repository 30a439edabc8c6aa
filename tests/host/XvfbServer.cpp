#include "XvfbServer.h"

#include <QStandardPaths>

XvfbServer::XvfbServer()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (program.isEmpty()) {
        m_error = QStringLiteral("Xvfb is not installed (Debian package xvfb)");
        return;
    }
    // The server picks a free display and writes its number on the descriptor given.
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(program,
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1280x800x24"),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!m_process.waitForStarted(10000)) {
        m_error = QStringLiteral("Xvfb did not start: %1").arg(m_process.errorString());
        return;
    }
    while (!m_process.canReadLine() && m_process.waitForReadyRead(20000)) {
    }
    const QByteArray number = m_process.readLine().trimmed();
    if (number.isEmpty()) {
        m_error = QStringLiteral("Xvfb gave no display: %1")
                      .arg(QString::fromLocal8Bit(m_process.readAllStandardError()));
        return;
    }
    m_display = ':' + number;
}

XvfbServer::~XvfbServer()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(10000)) {
        m_process.kill();
        m_process.waitForFinished(10000);
    }
}
