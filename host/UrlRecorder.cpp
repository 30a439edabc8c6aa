#include "UrlRecorder.h"

#include <QDesktopServices>

#include <OdEventLog.h>

namespace {
const char* const kSchemes[] = {"http", "https"};
} // namespace

UrlRecorder::UrlRecorder(bool refusing)
{
    if (refusing)
        m_refuser = std::make_unique<UrlRefuser>();
    registerHandlers();
}

UrlRecorder::~UrlRecorder()
{
    // Qt keeps a plain pointer to the handler: it must not outlive this object.
    unregisterHandlers();
}

void UrlRecorder::registerHandlers()
{
    QObject* receiver = m_refuser ? static_cast<QObject*>(m_refuser.get()) : this;
    const char* method = m_refuser ? UrlRefuser::method() : "openUrl";
    for (const char* scheme : kSchemes)
        QDesktopServices::setUrlHandler(QLatin1String(scheme), receiver, method);
}

void UrlRecorder::unregisterHandlers()
{
    for (const char* scheme : kSchemes)
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
}

void UrlRecorder::openUrl(const QUrl& url)
{
    OdEventLog::report(QStringLiteral("url-opened"), {{QStringLiteral("url"), url.toString()}});
    if (!m_forwarding)
        return;
    // Out of the way for the one call, or the desktop would hand the address straight back.
    unregisterHandlers();
    QDesktopServices::openUrl(url);
    registerHandlers();
}
