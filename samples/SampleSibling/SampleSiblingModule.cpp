#include "SampleSiblingModule.h"

#include <OdEdCommandStack.h>

void SampleSiblingModule::initApp()
{
    odedRegCmds()->addCommand(&m_load);
    odedRegCmds()->addCommand(&m_unload);
    odedRegCmds()->addCommand(&m_visibility);
    odedRegCmds()->addCommand(&m_exportTable);
}

void SampleSiblingModule::uninitApp()
{
    odedRegCmds()->removeCmd(&m_load);
    odedRegCmds()->removeCmd(&m_unload);
    odedRegCmds()->removeCmd(&m_visibility);
    odedRegCmds()->removeCmd(&m_exportTable);
}
