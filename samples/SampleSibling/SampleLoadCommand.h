#pragma once

#include "SampleCommand.h"

class SampleRibbon;

// SAMPLELOAD FILE [POSITION]: loads every record of the JSON file FILE, in order, through
// LoadRibbonMenuWrapper with POSITION (0 when not given).
class SampleLoadCommand : public SampleCommand
{
public:
    explicit SampleLoadCommand(SampleRibbon& ribbon);
    int runCommand(OdEdCommandContext* context) override;

private:
    SampleRibbon& m_ribbon;
};
