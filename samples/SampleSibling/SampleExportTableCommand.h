#pragma once

#include "SampleCommand.h"

class SampleRibbon;

// SAMPLEEXPORTTABLE load|unload: puts the "Export Table" entry into the application menu or
// takes it out, through LoadExportTableRibbonMenuWrapper / UnLoadExportTableRibbonMenuWrapper.
class SampleExportTableCommand : public SampleCommand
{
public:
    explicit SampleExportTableCommand(SampleRibbon& ribbon);
    int runCommand(OdEdCommandContext* context) override;

private:
    SampleRibbon& m_ribbon;
};
