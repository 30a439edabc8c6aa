#pragma once

#include <QString>

// Putting built files into a test's own folders, the way an installer would.
class StageFiles
{
public:
    // A hard link where the file system allows one, a copy otherwise. A symbolic link would
    // not do: a library finds its neighbours through the folder it was loaded from.
    static bool linkOrCopy(const QString& source, const QString& target);
};
