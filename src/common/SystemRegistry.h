#pragma once

#include <QString>
#include <QVariant>

// The system registry, the way the module reads it: on Windows the registry itself; elsewhere
// the registry stand-in that the host points the process at. Nothing read here is ever
// written, and a key or value that is not there reads as missing.
class SystemRegistry
{
public:
    // The default value of the key `subKey` below HKEY_CLASSES_ROOT, as text; a null text when
    // the key or its default value is missing or is not text.
    static QString classesRootDefault(const wchar_t* subKey);
    // The value `name` of the key `keyPath` ("HKEY_LOCAL_MACHINE\SOFTWARE\..."), read through
    // QSettings in the native format; `fallback` when it is missing.
    static QVariant value(const QString& keyPath, const QString& name, const QVariant& fallback);
};
