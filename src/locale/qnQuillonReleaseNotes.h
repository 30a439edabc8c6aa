#pragma once

#include <CFxCommand.h>

// "RELEASENOTES": opens the release notes of the latest version, in the host's language.
class qnQuillonReleaseNotes : public CFxCommand
{
public:
    const OdString globalName() const override;
    const OdString localName() const override;
    int runCommand(OdEdCommandContext* context) override;
};
