// The library's C entry points: what a module's delay-load import resolves by name.
#include <TarnCompanionExport.h>
#include <TarnCrashReportSendService.h>

TARN_COMPANION_EXPORT bool TarnCrashReportSendService_getRegVersion(QString* version)
{
    return TarnCrashReportSendService().getRegVersion(*version);
}

TARN_COMPANION_EXPORT void TarnCrashReportSendService_setRegVersion(const QString* version)
{
    TarnCrashReportSendService().setRegVersion(*version);
}

TARN_COMPANION_EXPORT void TarnCrashReportSendService_initialCheckOnInstall()
{
    TarnCrashReportSendService().initialCheckOnInstall();
}

TARN_COMPANION_EXPORT void TarnCrashReportSendService_reminderCheck()
{
    TarnCrashReportSendService().reminderCheck();
}
