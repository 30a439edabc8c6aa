#pragma once

#include "SampleCommand.h"

// SAMPLEEXPORTTABLE load|unload: puts the "Export Table" entry into the application menu or
// takes it out, through LoadExportTableRibbonMenuWrapper / UnLoadExportTableRibbonMenuWrapper.
class SampleExportTableCommand : public SampleCommand
{
public:
    SampleExportTableCommand();
    int runCommand(OdEdCommandContext* context) override;
};
