#pragma once

// Conversions between Qt's strings and the platform's, as tests write them.
#include <QString>

#include <OdString.h>

inline OdString od(const QString& text)
{
    return OdString(text.toStdWString());
}

inline QString qt(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}
