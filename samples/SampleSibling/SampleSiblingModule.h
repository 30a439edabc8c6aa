#pragma once

#include "SampleEditorReactor.h"
#include "SampleExportTableCommand.h"
#include "SampleListCommand.h"
#include "SampleLoadCommand.h"
#include "SampleRibbon.h"
#include "SampleUnloadCommand.h"
#include "SampleVisibilityCommand.h"

#include <OdRxModule.h>
#include <OdStaticRxObject.h>

// The module object: it owns its commands and its editor reactor by value and lends them to
// the host while it is loaded, and it holds the ExtCommands module, whose functions it calls.
class SampleSiblingModule : public OdRxModule
{
public:
    void initApp() override;
    void uninitApp() override;

private:
    OdRxModulePtr m_extCommands;
    SampleRibbon m_ribbon;
    OdStaticRxObject<SampleEditorReactor> m_editorReactor{m_ribbon};
    OdStaticRxObject<SampleLoadCommand> m_load{m_ribbon};
    OdStaticRxObject<SampleUnloadCommand> m_unload;
    OdStaticRxObject<SampleVisibilityCommand> m_visibility;
    OdStaticRxObject<SampleExportTableCommand> m_exportTable{m_ribbon};
    OdStaticRxObject<SampleListCommand> m_list{m_ribbon};
};
