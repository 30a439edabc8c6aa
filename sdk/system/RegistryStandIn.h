#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>

// The system registry where the operating system has none: one INI file whose groups are the
// registry's key paths with "/" for "\" ("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors").
// A key's default value is named "Default", as QSettings names it on Windows. It answers as the
// registry does: "\" and "/" separate a key's parts, empty parts count for nothing, and a key's
// parts are found in any letter case. Values go through QVariant, so a number written by an
// installer and the same number written as text read alike.
//
// Which file it is belongs to the process, as the registry belongs to the system: the
// environment variable named by `fileVariable`, which the host sets before it loads any module,
// and without it "Corvane/registry.ini" in the user's configuration folder. So every reader (the
// host, a module, the viewer's installer) finds the same file without asking anyone.
//
// Whatever a module may hand to Qt's caches is made on the heap here (no literal reaches a
// QSettings), because a module that reads the registry through this code can be unloaded.
class RegistryStandIn
{
public:
    static constexpr const char* fileVariable = "CORVANE_REGISTRY_FILE";

    // Settings positioned on the key `keyPath`, for example
    // "HKEY_LOCAL_MACHINE\SOFTWARE\Corvane\BfxConnectors\". A key that does not exist reads as
    // empty.
    static std::unique_ptr<QSettings> openKey(const QString& keyPath);

    // The file in use: the variable's, or the default.
    static QString file();
    // Makes `path` the file of this process and of the programs it starts; an empty path goes
    // back to the default.
    static void useFile(const QString& path);
    // "Corvane/registry.ini" in the user's configuration folder.
    static QString defaultFile();

    // The group of the file that holds `keyPath`.
    static QString group(const QString& keyPath);
    // How `part` is spelt among the existing `groups`: the first that differs from it only in
    // letter case, or `part` itself when none does.
    static QString existingSpelling(const QStringList& groups, const QString& part);
};
