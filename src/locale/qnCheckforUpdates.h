#pragma once

#include <CFxNamedCommand.h>

// "CHECKFORUPDATES": opens the product page from which the current release is downloaded, in the
// host's language.
class qnCheckforUpdates : public CFxNamedCommand
{
public:
    qnCheckforUpdates() : CFxNamedCommand(L"CHECKFORUPDATES") {}

    int runCommand(OdEdCommandContext* context) override;
};
