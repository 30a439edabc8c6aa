#pragma once

#include <CFxCommand.h>

// "PLOT_PRONTO": opens the PlotPronto project page of the maker's labs site.
class CFxPlotPronto : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
