#pragma once

#include "FxKernelExport.h"

#include <QByteArray>
#include <QString>

// A text file that the host or a module reads from outside (a script, a UI profile, a file of
// ribbon records): a regular file of UTF-8 text without NUL bytes, and at most kMaxSize bytes.
// Anything else is refused before it is used: what is not a regular file (a folder, a device,
// a pipe) before it is opened, since opening a pipe that nobody writes to waits for ever, and a
// file larger than the bound before it is read to its end.
class FX_KERNEL_EXPORT CFxTextFile
{
public:
    static constexpr qint64 kMaxSize = 64 * 1024 * 1024;

    // Reads the file at `path` into `content`. False, with `error` saying why, when it cannot
    // be read or is not such a text.
    static bool read(const QString& path, QByteArray& content, QString& error);
    // What `path` is when it exists but is not a regular file ("it is a folder", "it is a
    // pipe, not a regular file", ...); empty for a regular file and for a path that names
    // nothing. Asks without opening anything.
    static QString notRegularFile(const QString& path);
    // Checks bytes already read. False, with `error` saying why, when they hold a NUL byte,
    // are not UTF-8 or are more than kMaxSize.
    static bool check(const QByteArray& content, QString& error);
};
