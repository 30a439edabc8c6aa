#pragma once

#include <QString>

// Copies one regular file byte for byte into a file that does not exist yet, with the
// source's permissions. Unlike QFile::copy it neither goes through a temporary file nor
// forces the data to the disk: the copies are scratch files for the viewer, and a publish of
// hundreds of referenced drawings should cost what copying them costs.
class PlainFileCopy
{
public:
    // False, leaving nothing behind, when the source is not a regular file, the target exists
    // or anything fails on the way.
    static bool copy(const QString& source, const QString& target);
};
