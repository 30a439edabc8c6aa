// The module's delay-load import of the crash-report companion.
#include "DelayLoadLibrary.h"

#include <TarnCrashReportSendService.h>

bool TarnCrashReportSendService::getRegVersion(QString& version)
{
    return DelayLoadLibrary::call<TarnCrashReportGetRegVersionFunction>(
        TarnCrashReportEntryPoints::library, TarnCrashReportEntryPoints::getRegVersion, &version);
}

void TarnCrashReportSendService::setRegVersion(const QString& version)
{
    DelayLoadLibrary::call<TarnCrashReportSetRegVersionFunction>(
        TarnCrashReportEntryPoints::library, TarnCrashReportEntryPoints::setRegVersion, &version);
}

void TarnCrashReportSendService::initialCheckOnInstall() const
{
    DelayLoadLibrary::call<TarnCrashReportCheckFunction>(
        TarnCrashReportEntryPoints::library, TarnCrashReportEntryPoints::initialCheckOnInstall);
}

void TarnCrashReportSendService::reminderCheck()
{
    DelayLoadLibrary::call<TarnCrashReportCheckFunction>(TarnCrashReportEntryPoints::library,
                                                         TarnCrashReportEntryPoints::reminderCheck);
}
