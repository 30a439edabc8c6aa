#pragma once

#include "SampleCommand.h"

// SAMPLEVISIBILITY ID 0|1: hides (0) or shows (1) the entry ID of the data-management split
// button through SetRibbonItemVisibility.
class SampleVisibilityCommand : public SampleCommand
{
public:
    SampleVisibilityCommand();
    int runCommand(OdEdCommandContext* context) override;
};
