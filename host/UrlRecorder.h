#pragma once

#include <QObject>
#include <QUrl>

// Takes every web address that the host or a module hands to the desktop (http and https) and
// reports it as a url-opened event. A scripted session opens no browser; the window hands the
// address on to the desktop as well. The handlers are registered for as long as the object
// lives.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    UrlRecorder();
    ~UrlRecorder() override;

    // Whether addresses also reach the desktop's browser.
    void setForwarding(bool forwarding) { m_forwarding = forwarding; }

public slots:
    void openUrl(const QUrl& url);

private:
    void registerHandlers();
    static void unregisterHandlers();

    bool m_forwarding = false;
};
