#pragma once

#include <CFxNamedCommand.h>

// "TUTORIAL": a placeholder that does nothing.
class ExtTutorialCommand : public CFxNamedCommand
{
public:
    ExtTutorialCommand() : CFxNamedCommand(L"TUTORIAL") {}

    int runCommand(OdEdCommandContext* context) override;
};
