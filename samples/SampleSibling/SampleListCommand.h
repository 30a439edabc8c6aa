#pragma once

#include "SampleCommand.h"

class SampleRibbon;

// SAMPLELIST: tells the identifiers of the buttons the sample has loaded, which it takes off
// again when it is unloaded. The sample's own button runs it.
class SampleListCommand : public SampleCommand
{
public:
    explicit SampleListCommand(const SampleRibbon& ribbon);
    int runCommand(OdEdCommandContext* context) override;

private:
    const SampleRibbon& m_ribbon;
};
