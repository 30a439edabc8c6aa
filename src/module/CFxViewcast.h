#pragma once

#include <CFxNamedCommand.h>

// "VIEWCAST": publishes the active drawing and the drawings it references to the Viewcast viewer.
class CFxViewcast : public CFxNamedCommand
{
public:
    CFxViewcast() : CFxNamedCommand(L"VIEWCAST") {}

    int runCommand(OdEdCommandContext* context) override;
};
