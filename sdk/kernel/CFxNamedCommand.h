#pragma once

#include "CFxCommand.h"
#include "FxKernelExport.h"

// A command whose names are fixed when it is made, which is what nearly every command is: the
// local name, as a user of the host's language types it, and the global name, the local one
// after an underscore, which the host reads as "this name in any language". A command class then
// only adds its constructor and what it does (runCommand).
class FX_KERNEL_EXPORT CFxNamedCommand : public CFxCommand
{
public:
    explicit CFxNamedCommand(const wchar_t* localName);
    ~CFxNamedCommand() override;

    const OdString globalName() const override;
    const OdString localName() const override;

private:
    // A copy, so that no name points into the library of the class that made it.
    OdString m_localName;
};
