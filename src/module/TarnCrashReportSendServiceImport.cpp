// The module's delay-load import of the crash-report companion.
#include "DelayLoadLibrary.h"

#include <TarnCrashReportSendService.h>

namespace {
template <class Function>
Function resolved(const char* symbol)
{
    return DelayLoadLibrary::companion(TarnCrashReportEntryPoints::library)
        .resolve<Function>(symbol);
}
} // namespace

bool TarnCrashReportSendService::getRegVersion(QString& version)
{
    auto call =
        resolved<TarnCrashReportGetRegVersionFunction>(TarnCrashReportEntryPoints::getRegVersion);
    return call && call(&version);
}

void TarnCrashReportSendService::setRegVersion(const QString& version)
{
    if (auto call = resolved<TarnCrashReportSetRegVersionFunction>(
            TarnCrashReportEntryPoints::setRegVersion))
        call(&version);
}

void TarnCrashReportSendService::initialCheckOnInstall() const
{
    if (auto call = resolved<TarnCrashReportCheckFunction>(
            TarnCrashReportEntryPoints::initialCheckOnInstall))
        call();
}

void TarnCrashReportSendService::reminderCheck()
{
    if (auto call =
            resolved<TarnCrashReportCheckFunction>(TarnCrashReportEntryPoints::reminderCheck))
        call();
}
