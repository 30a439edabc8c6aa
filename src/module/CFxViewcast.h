#pragma once

#include <CFxCommand.h>

// "VIEWCAST": publishes the active drawing and the drawings it references to the Viewcast viewer.
class CFxViewcast : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
