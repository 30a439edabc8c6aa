#pragma once

#include <CFxCommand.h>

// "Community": shows the community question view.
class CFxCommunityCommand : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
