#include "SampleSiblingModule.h"

#include <OdEdCommandStack.h>
#include <OdEditor.h>
#include <OdRxDynamicLinker.h>

void SampleSiblingModule::initApp()
{
    // ExtCommands starts before this module's work: when the host loads this module first, the
    // platform starts ExtCommands here, so that its editor reactor, attached before ours, makes
    // the Add-Ins tab before our buttons go into it. Held until uninitApp, so that the host
    // cannot unload ExtCommands while this module uses it.
    m_extCommands = odrxDynamicLinker()->loadModule(OdString(L"ExtCommands"));
    odedEditor()->addReactor(&m_editorReactor);
    odedRegCmds()->addCommand(&m_load);
    odedRegCmds()->addCommand(&m_unload);
    odedRegCmds()->addCommand(&m_visibility);
    odedRegCmds()->addCommand(&m_exportTable);
    odedRegCmds()->addCommand(&m_list);
}

void SampleSiblingModule::uninitApp()
{
    odedEditor()->removeReactor(&m_editorReactor);
    m_ribbon.unloadAll();
    // Removed in the order in which they were added.
    odedRegCmds()->removeCmd(&m_load);
    odedRegCmds()->removeCmd(&m_unload);
    odedRegCmds()->removeCmd(&m_visibility);
    odedRegCmds()->removeCmd(&m_exportTable);
    odedRegCmds()->removeCmd(&m_list);
    m_extCommands.release();
}
