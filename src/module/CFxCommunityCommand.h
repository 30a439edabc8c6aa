#pragma once

#include <CFxNamedCommand.h>

// "Community": shows the community question view.
class CFxCommunityCommand : public CFxNamedCommand
{
public:
    CFxCommunityCommand() : CFxNamedCommand(L"Community") {}

    int runCommand(OdEdCommandContext* context) override;
};
