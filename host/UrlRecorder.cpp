#include "UrlRecorder.h"

#include <QDesktopServices>

#include <OdEventLog.h>

namespace {
const char* const kSchemes[] = {"http", "https"};
} // namespace

UrlRecorder::UrlRecorder()
{
    for (const char* scheme : kSchemes)
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "openUrl");
}

UrlRecorder::~UrlRecorder()
{
    // Qt keeps a plain pointer to the handler: it must not outlive this object.
    for (const char* scheme : kSchemes)
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
}

void UrlRecorder::openUrl(const QUrl& url)
{
    OdEventLog::report(QStringLiteral("url-opened"), {{QStringLiteral("url"), url.toString()}});
}
