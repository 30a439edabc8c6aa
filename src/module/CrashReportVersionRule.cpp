#include "CrashReportVersionRule.h"

#include "common/HeapText.h"

#include <QRegExp>
#include <QStringList>

bool crashReportInstallCheck(bool versionRecorded, const QString& recorded, const QString& current)
{
    if (!versionRecorded)
        return true;
    if (current.compare(recorded, Qt::CaseInsensitive) == 0)
        return false;
    // QRegExp keeps compiled patterns in a process-wide cache.
    const QRegExp dot(heapText("\\."), Qt::CaseSensitive, QRegExp::RegExp);
    const QStringList components = current.split(dot, Qt::SkipEmptyParts);
    return components.value(1).compare(QLatin1String("0"), Qt::CaseInsensitive) == 0;
}
