#include "CFxCommand.h"

#include "CFxCommandContext.h"

namespace {
// The group of commands that do not choose their own.
constexpr const wchar_t* kDefaultGroupName = L"QUILLON_COMMANDS";
} // namespace

CFxCommand::CFxCommand() = default;

CFxCommand::~CFxCommand() = default;

const OdString CFxCommand::groupName() const
{
    return OdString(kDefaultGroupName);
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
