#pragma once

#include <CFxNamedCommand.h>

// "RELEASENOTES": opens the release notes of the latest version, in the host's language.
class qnQuillonReleaseNotes : public CFxNamedCommand
{
public:
    qnQuillonReleaseNotes() : CFxNamedCommand(L"RELEASENOTES") {}

    int runCommand(OdEdCommandContext* context) override;
};
