#pragma once

#include <CFxCommand.h>

// "TUTORIAL": a placeholder that does nothing.
class ExtTutorialCommand : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
