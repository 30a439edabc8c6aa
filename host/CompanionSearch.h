#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Where the system's loader finds the companion libraries, which modules load by their file
// name alone. On Linux that is LD_LIBRARY_PATH, which the loader reads only when a process
// starts: so the host puts its companion folder first in it and starts itself again, once,
// before it does anything else. On Windows the folder becomes the DLL directory, which the
// system searches right after the program's own folder.
class CompanionSearch
{
public:
    // The companion folder asked for: `companionPath` taken from the current folder, or the
    // program's folder when it is empty. Throws HostError for a folder that the library search
    // path cannot name.
    static QString folder(const QString& companionPath);
    // The library search path `current` with `folder` put first and the rest kept as it is;
    // nothing when `folder` is first already.
    static std::optional<QByteArray> arrangedSearchPath(const QByteArray& current,
                                                        const QString& folder);
    // Makes the system look for libraries loaded by name in `folder` first. On Linux, when the
    // search path is not so yet, this starts the program again with the arranged path and the
    // same arguments `argv` (and does not return); throws HostError when it cannot.
    static void arrange(const QString& folder, char** argv);

private:
    static QString programFolder();
};
