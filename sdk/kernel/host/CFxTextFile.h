#pragma once

#include "FxKernelExport.h"

#include <QByteArray>
#include <QString>

// A text file that the host or a module reads from outside (a script, a UI profile, a file of
// ribbon records): UTF-8 without NUL bytes, and at most kMaxSize bytes. Anything else is
// refused before it is used, and a file larger than the bound is refused before it is read
// to its end, so that a device such as /dev/zero is refused at once.
class FX_KERNEL_EXPORT CFxTextFile
{
public:
    static constexpr qint64 kMaxSize = 64 * 1024 * 1024;

    // Reads the file at `path` into `content`. False, with `error` saying why, when it cannot
    // be read or is not such a text.
    static bool read(const QString& path, QByteArray& content, QString& error);
    // Checks bytes already read. False, with `error` saying why, when they hold a NUL byte,
    // are not UTF-8 or are more than kMaxSize.
    static bool check(const QByteArray& content, QString& error);
};
