#include "TarnCrashReportEditorReactor.h"

#include "CurrentVersion.h"

#include <CFxSystemServices.h>
#include <TarnCrashReportSendService.h>

TarnCrashReportEditorReactor::TarnCrashReportEditorReactor(bool installCheck)
    : installCheck(installCheck)
{}

void TarnCrashReportEditorReactor::DocumentCreated(CFxDocument*) {}

void TarnCrashReportEditorReactor::DocumentToBeDestroyed(CFxDocument*) {}

void TarnCrashReportEditorReactor::DocumentActivated(CFxDocument*)
{
    TarnCrashReportSendService service;
    if (installCheck) {
        service.initialCheckOnInstall();
        service.setRegVersion(currentVersionString());
    } else {
        service.reminderCheck();
    }
    GetFxSystemServices()->GetDocumentManager()->RemoveReactor(this);
}
