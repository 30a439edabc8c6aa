#pragma once

// The SDK's conversions between Qt's strings and the platform's, under the short names that
// tests write.
#include <OdString.h>

inline OdString od(const QString& text)
{
    return toOdString(text);
}

inline QString qt(const OdString& text)
{
    return toQString(text);
}
