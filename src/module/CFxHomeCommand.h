#pragma once

#include <CFxCommand.h>

// "Home": shows the host's task pane.
class CFxHomeCommand : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
