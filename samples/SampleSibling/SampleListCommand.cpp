#include "SampleListCommand.h"

#include "SampleRibbon.h"

SampleListCommand::SampleListCommand(const SampleRibbon& ribbon)
    : SampleCommand(L"SAMPLELIST"), m_ribbon(ribbon)
{}

int SampleListCommand::runCommand(OdEdCommandContext* context)
{
    const QStringList loaded = m_ribbon.loaded();
    tell(context, loaded.isEmpty() ? QStringLiteral("no buttons loaded")
                                   : loaded.join(QStringLiteral(", ")));
    return RTNORM;
}
