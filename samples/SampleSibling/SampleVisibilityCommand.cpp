#include "SampleVisibilityCommand.h"

#include <ExtCommands/RibbonMenuItemWrapper.h>

SampleVisibilityCommand::SampleVisibilityCommand() : SampleCommand(L"SAMPLEVISIBILITY") {}

int SampleVisibilityCommand::runCommand(OdEdCommandContext* context)
{
    const QString id = askString(context, L"Identifier of the entry");
    int visible = -1;
    if (id.isEmpty())
        tell(context, QStringLiteral("no identifier given"));
    else if (!askInt(context, L"Visible (0 or 1)", -1, visible) || (visible != 0 && visible != 1))
        tell(context, QStringLiteral("answer 0 to hide the entry or 1 to show it"));
    else
        SetRibbonItemVisibility(id, visible == 1);
    return RTNORM;
}
