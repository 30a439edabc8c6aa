#pragma once

#include "FxKernelExport.h"

#include <OdEdCommand.h>

// The normal-completion code of a command's run operation.
constexpr int RTNORM = 5100;

// The host's command base: a command overrides its names and runCommand; execute runs it and
// hands the result code to the host's command context.
class FX_KERNEL_EXPORT CFxCommand : public OdEdCommand
{
public:
    CFxCommand();
    ~CFxCommand() override;

    const OdString groupName() const override;
    void execute(OdEdCommandContext* context) override;

    virtual int runCommand(OdEdCommandContext* context) = 0;
    virtual void Help();
    virtual int GetHelpId() const;
};
