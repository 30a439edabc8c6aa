#include "CFxCommand.h"

#include "CFxCommandContext.h"

CFxCommand::CFxCommand() = default;

CFxCommand::~CFxCommand() = default;

const OdString CFxCommand::groupName() const
{
    return OdString(defaultGroupName());
}

void CFxCommand::execute(OdEdCommandContext* context)
{
    const int result = runCommand(context);
    if (auto* hostContext = dynamic_cast<CFxCommandContext*>(context))
        hostContext->setResult(result);
}

void CFxCommand::Help() {}

int CFxCommand::GetHelpId() const
{
    return 0;
}
