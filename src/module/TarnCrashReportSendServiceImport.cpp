// The module's delay-load import of the crash-report companion.
#include "DelayLoadLibrary.h"

#include <TarnCrashReportSendService.h>

namespace {
DelayLoadLibrary g_library(TarnCrashReportEntryPoints::library);
} // namespace

bool TarnCrashReportSendService::getRegVersion(QString& version)
{
    auto entry = g_library.resolve<TarnCrashReportGetRegVersionFunction>(
        TarnCrashReportEntryPoints::getRegVersion);
    return entry && entry(&version);
}

void TarnCrashReportSendService::setRegVersion(const QString& version)
{
    if (auto entry = g_library.resolve<TarnCrashReportSetRegVersionFunction>(
            TarnCrashReportEntryPoints::setRegVersion))
        entry(&version);
}

void TarnCrashReportSendService::initialCheckOnInstall() const
{
    if (auto entry = g_library.resolve<TarnCrashReportCheckFunction>(
            TarnCrashReportEntryPoints::initialCheckOnInstall))
        entry();
}

void TarnCrashReportSendService::reminderCheck()
{
    if (auto entry = g_library.resolve<TarnCrashReportCheckFunction>(
            TarnCrashReportEntryPoints::reminderCheck))
        entry();
}
