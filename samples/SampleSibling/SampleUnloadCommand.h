#pragma once

#include "SampleCommand.h"

// SAMPLEUNLOAD ID: takes the button ID out of the Add-Ins row through UnLoadRibbonMenuWrapper.
class SampleUnloadCommand : public SampleCommand
{
public:
    SampleUnloadCommand();
    int runCommand(OdEdCommandContext* context) override;
};
