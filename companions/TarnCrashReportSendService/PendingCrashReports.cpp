#include "PendingCrashReports.h"

#include <QDir>
#include <QStandardPaths>

QString PendingCrashReports::folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Corvane/Quillon/CrashReports");
}

QStringList PendingCrashReports::list()
{
    return QDir(folder()).entryList({QStringLiteral("*.dmp")}, QDir::Files, QDir::Name);
}
