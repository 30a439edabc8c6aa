#include "SampleUnloadCommand.h"

#include <ExtCommands/RibbonMenuItemWrapper.h>

SampleUnloadCommand::SampleUnloadCommand() : SampleCommand(L"SAMPLEUNLOAD") {}

int SampleUnloadCommand::runCommand(OdEdCommandContext* context)
{
    const QString id = askString(context, L"Identifier of the button");
    if (id.isEmpty())
        tell(context, QStringLiteral("no identifier given"));
    else
        UnLoadRibbonMenuWrapper(id);
    return RTNORM;
}
