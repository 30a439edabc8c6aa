#include "ResidentMemory.h"

#include <QFile>

long long ResidentMemory::kilobytes()
{
    // Linux names it "VmRSS:   12345 kB" in the process's status. The file reports no size,
    // so it is read whole rather than line by line up to its end.
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (!line.startsWith("VmRSS:"))
            continue;
        bool ok = false;
        const long long value = line.mid(6).trimmed().split(' ').value(0).toLongLong(&ok);
        return ok ? value : -1;
    }
    return -1;
}
