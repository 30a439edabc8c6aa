#pragma once

#include <CFxNamedCommand.h>

// "PLOT_PRONTO": opens the PlotPronto project page of the maker's labs site.
class CFxPlotPronto : public CFxNamedCommand
{
public:
    CFxPlotPronto() : CFxNamedCommand(L"PLOT_PRONTO") {}

    int runCommand(OdEdCommandContext* context) override;
};
