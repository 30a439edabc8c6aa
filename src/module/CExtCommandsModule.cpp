#include "CExtCommandsModule.h"

#include "CrashReportVersionRule.h"
#include "CurrentVersion.h"

#include <CFxSystemServices.h>
#include <OdEdCommandStack.h>
#include <OdEditor.h>
#include <TarnCrashReportSendService.h>

CExtCommandsModule::CExtCommandsModule() : crashReactor(nullptr) {}

CExtCommandsModule::~CExtCommandsModule() = default;

void CExtCommandsModule::initApp()
{
    odedEditor()->addReactor(&m_editorReactor);
    odedRegCmds()->addCommand(&m_homeCommand);
    odedRegCmds()->addCommand(&m_communityCommand);
    odedRegCmds()->addCommand(&m_viewcastCommand);
    if (!crashReactor)
        createCrashReactor();
}

void CExtCommandsModule::createCrashReactor()
{
    const QString current = currentVersionString();
    TarnCrashReportSendService service;
    QString stored;
    const bool recorded = service.getRegVersion(stored);
    const bool installCheck = crashReportInstallCheck(recorded, stored, current);
    crashReactor = new TarnCrashReportEditorReactor(installCheck);
    GetFxSystemServices()->GetDocumentManager()->AddReactor(crashReactor);
}

void CExtCommandsModule::uninitApp()
{
    odedEditor()->removeReactor(&m_editorReactor);
    // Removed in the order in which they were added: docs/lifecycle.md, row "Start-up
    // commands".
    odedRegCmds()->removeCmd(&m_homeCommand);
    odedRegCmds()->removeCmd(&m_communityCommand);
    odedRegCmds()->removeCmd(&m_viewcastCommand);
    // Not detached first, and the pointer left as it is: docs/lifecycle.md, row "Crash-report
    // reactor".
    delete crashReactor;
}
