#include "CFxPlotPronto.h"

#include <QDesktopServices>
#include <QUrl>

int CFxPlotPronto::runCommand(OdEdCommandContext*)
{
    QDesktopServices::openUrl(
        QUrl(QStringLiteral("http://" EXTCOMMANDS_LABS_HOST "/Projects/PlotPronto/"),
             QUrl::TolerantMode));
    return RTNORM;
}
