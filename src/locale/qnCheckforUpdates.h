#pragma once

#include <CFxCommand.h>

// "CHECKFORUPDATES": opens the product page from which the current release is downloaded, in the
// host's language.
class qnCheckforUpdates : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
