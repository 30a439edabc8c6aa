#pragma once

#include "SampleExportTableCommand.h"
#include "SampleLoadCommand.h"
#include "SampleUnloadCommand.h"
#include "SampleVisibilityCommand.h"

#include <OdRxModule.h>
#include <OdStaticRxObject.h>

// The module object: it owns its commands by value and lends them to the command stack while
// it is loaded.
class SampleSiblingModule : public OdRxModule
{
public:
    void initApp() override;
    void uninitApp() override;

private:
    OdStaticRxObject<SampleLoadCommand> m_load;
    OdStaticRxObject<SampleUnloadCommand> m_unload;
    OdStaticRxObject<SampleVisibilityCommand> m_visibility;
    OdStaticRxObject<SampleExportTableCommand> m_exportTable;
};
