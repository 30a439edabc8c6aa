#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

// An X server of a test's own: Xvfb on a free display number, started when made and stopped
// when it goes. No window manager runs on it.
class XvfbServer
{
public:
    XvfbServer();
    ~XvfbServer();
    XvfbServer(const XvfbServer&) = delete;
    XvfbServer& operator=(const XvfbServer&) = delete;

    // Empty when the server did not start; error() says why.
    QByteArray display() const { return m_display; }
    QString error() const { return m_error; }

private:
    QProcess m_process;
    QByteArray m_display;
    QString m_error;
};
