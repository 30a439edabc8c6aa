#pragma once

#include "UrlRefuser.h"

#include <QObject>
#include <QUrl>

#include <memory>

// Takes every web address that the host or a module hands to the desktop (http and https) and
// reports it as a url-opened event. A scripted session opens no browser; the window hands the
// address on to the desktop as well. A refusing desktop (--refuse-urls) reports each address
// as url-refused instead, and whoever handed it on learns that it could not be opened. The
// handlers are registered for as long as the object lives.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    explicit UrlRecorder(bool refusing = false);
    ~UrlRecorder() override;

    // Whether addresses also reach the desktop's browser (never on a refusing desktop).
    void setForwarding(bool forwarding) { m_forwarding = forwarding; }

public slots:
    void openUrl(const QUrl& url);

private:
    void registerHandlers();
    static void unregisterHandlers();

    // Set on a refusing desktop: it takes the addresses instead of this object.
    std::unique_ptr<UrlRefuser> m_refuser;
    bool m_forwarding = false;
};
