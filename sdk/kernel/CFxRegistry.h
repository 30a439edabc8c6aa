#pragma once

#include "FxKernelExport.h"

#include <QSettings>
#include <QString>

#include <memory>

// Values of the system registry. On Windows this is the registry itself; elsewhere a stand-in:
// one INI file, chosen by the host, whose groups are the registry's key paths with "/" for "\"
// ("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"). A key's default value is named
// "Default", as QSettings names it on Windows.
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
};
