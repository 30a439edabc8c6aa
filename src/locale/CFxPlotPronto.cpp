#include "CFxPlotPronto.h"

const OdString CFxPlotPronto::globalName() const
{
    return OdString(L"_PLOT_PRONTO");
}

const OdString CFxPlotPronto::localName() const
{
    return OdString(L"PLOT_PRONTO");
}

int CFxPlotPronto::runCommand(OdEdCommandContext*)
{
    return RTNORM;
}
