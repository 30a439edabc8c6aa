#pragma once

#include <QString>
#include <QStringList>

// Crash reports waiting to be sent: the "*.dmp" files of the user's crash-report folder.
class PendingCrashReports
{
public:
    static QString folder();
    // File names, sorted.
    static QStringList list();
};
