#include "CFxPlotPronto.h"

#include <QDesktopServices>
#include <QUrl>

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
    QDesktopServices::openUrl(
        QUrl(QStringLiteral("http://" EXTCOMMANDS_LABS_HOST "/Projects/PlotPronto/"),
             QUrl::TolerantMode));
    return RTNORM;
}
