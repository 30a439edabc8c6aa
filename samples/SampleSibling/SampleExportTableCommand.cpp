#include "SampleExportTableCommand.h"

#include "SampleRibbon.h"

SampleExportTableCommand::SampleExportTableCommand(SampleRibbon& ribbon)
    : SampleCommand(L"SAMPLEEXPORTTABLE"), m_ribbon(ribbon)
{}

int SampleExportTableCommand::runCommand(OdEdCommandContext* context)
{
    const QString action = askString(context, L"load or unload");
    if (action.compare(QLatin1String("load"), Qt::CaseInsensitive) == 0)
        m_ribbon.loadExportTable();
    else if (action.compare(QLatin1String("unload"), Qt::CaseInsensitive) == 0)
        m_ribbon.unloadExportTable();
    else
        tell(context, QStringLiteral("answer load or unload"));
    return RTNORM;
}
