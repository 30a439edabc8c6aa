#pragma once

#include "SampleCommand.h"

// SAMPLELOAD FILE [POSITION]: loads every record of the JSON file FILE, in order, through
// LoadRibbonMenuWrapper with POSITION (0 when not given).
class SampleLoadCommand : public SampleCommand
{
public:
    SampleLoadCommand();
    int runCommand(OdEdCommandContext* context) override;
};
