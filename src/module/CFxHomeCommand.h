#pragma once

#include <CFxNamedCommand.h>

// "Home": shows the host's task pane.
class CFxHomeCommand : public CFxNamedCommand
{
public:
    CFxHomeCommand() : CFxNamedCommand(L"Home") {}

    int runCommand(OdEdCommandContext* context) override;
};
