#include "SampleExportTableCommand.h"

#include <ExtCommands/ExportTableRibbon.h>

SampleExportTableCommand::SampleExportTableCommand() : SampleCommand(L"SAMPLEEXPORTTABLE") {}

int SampleExportTableCommand::runCommand(OdEdCommandContext* context)
{
    const QString action = askString(context, L"load or unload");
    if (action.compare(QLatin1String("load"), Qt::CaseInsensitive) == 0)
        LoadExportTableRibbonMenuWrapper();
    else if (action.compare(QLatin1String("unload"), Qt::CaseInsensitive) == 0)
        UnLoadExportTableRibbonMenuWrapper();
    else
        tell(context, QStringLiteral("answer load or unload"));
    return RTNORM;
}
