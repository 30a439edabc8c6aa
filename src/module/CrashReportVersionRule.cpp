#include "CrashReportVersionRule.h"

#include <QRegExp>
#include <QStringList>

bool crashReportInstallCheck(bool versionRecorded, const QString& recorded, const QString& current)
{
    if (!versionRecorded)
        return true;
    if (current.compare(recorded, Qt::CaseInsensitive) == 0)
        return false;
    // Not a QStringLiteral: Qt keeps compiled patterns in a process-wide cache keyed by the
    // pattern's text, and a literal's text lives in this library, which goes when the module
    // is unloaded. A pattern on the heap is Qt's to keep.
    const QRegExp dot(QString::fromLatin1("\\."), Qt::CaseSensitive, QRegExp::RegExp);
    const QStringList components = current.split(dot, Qt::SkipEmptyParts);
    return components.value(1).compare(QLatin1String("0"), Qt::CaseInsensitive) == 0;
}
