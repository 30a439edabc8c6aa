#pragma once

#include "CFxCommunityCommand.h"
#include "CFxExtCommands.h"
#include "CFxHomeCommand.h"
#include "CFxViewcast.h"
#include "ExtTutorialCommand.h"
#include "TarnCrashReportEditorReactor.h"
#include "locale/CFxPlotPronto.h"

#include <OdRxModule.h>
#include <OdStaticRxObject.h>

// The module object. Everything it lends to the host is a member, owned by value; only the
// crash-report reactor lives on the heap. The members are constructed in the order declared
// and destroyed in the reverse order. The labs-page and tutorial commands are never lent:
// docs/lifecycle.md, row "Unregistered commands".
class CExtCommandsModule : public OdRxModule
{
public:
    CExtCommandsModule();
    ~CExtCommandsModule() override;

    void initApp() override;
    void uninitApp() override;

private:
    void createCrashReactor();

    OdStaticRxObject<CFxExtCommands> m_editorReactor;
    OdStaticRxObject<CFxPlotPronto> m_plotProntoCommand;
    OdStaticRxObject<CFxHomeCommand> m_homeCommand;
    TarnCrashReportEditorReactor* crashReactor;
    OdStaticRxObject<CFxViewcast> m_viewcastCommand;
    OdStaticRxObject<ExtTutorialCommand> m_tutorialCommand;
    OdStaticRxObject<CFxCommunityCommand> m_communityCommand;
};
