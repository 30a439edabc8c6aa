#pragma once

#include <QStringList>

// The shared objects mapped into this process at the moment, as the system's loader lists them.
class MappedLibraries
{
public:
    // The full file names of the mapped objects whose file is called `fileName`, in whatever
    // folder: one entry per copy in the process.
    static QStringList named(const QString& fileName);
};
