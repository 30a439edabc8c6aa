#pragma once

#include "FxKernelExport.h"

#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>

// Values of the system registry. On Windows this is the registry itself; elsewhere a stand-in:
// one INI file, chosen by the host, whose groups are the registry's key paths with "/" for "\"
// ("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"). A key's default value is named
// "Default", as QSettings names it on Windows. Both answer the same for the same key: "\" and
// "/" separate its parts, empty parts count for nothing, and the key's parts are found in any
// letter case, as the registry finds them.
class FX_KERNEL_EXPORT CFxRegistry
{
public:
    // Settings positioned on the key `keyPath`, for example
    // "HKEY_LOCAL_MACHINE\SOFTWARE\Corvane\BfxConnectors\". A key that does not exist reads as
    // empty.
    static std::unique_ptr<QSettings> openKey(const QString& keyPath);

    // Where the stand-in lives (ignored on Windows). Default: "Corvane/registry.ini" in the
    // user's configuration folder.
    static void setStandInFile(const QString& path);
    static QString standInFile();

    // The group of the stand-in file that holds `keyPath`.
    static QString standInGroup(const QString& keyPath);
    // The key as the Windows registry names it: its parts joined with "\".
    static QString nativeKeyPath(const QString& keyPath);
    // How `part` is spelt among the existing `groups`: the first that differs from it only in
    // letter case, or `part` itself when none does.
    static QString existingSpelling(const QStringList& groups, const QString& part);
};
