#include "RibbonCommands.h"

#include <CFxUI.h>
#include <ExtCommands/RibbonItem.h>

namespace {
// The fields in the order in which the host expects a new command to be described.
void describe(CFxUICommand& command, const RibbonItem& item)
{
    command.SetMacro(item.commandName);
    command.SetActionId(QStringLiteral("ID_") + item.commandName);
    command.SetName(item.commandName);
    command.SetSmallIcon(item.smallIcon, CFxString());
    command.SetLargeIcon(item.largeIcon, CFxString());
    command.SetDescription(item.description);
    command.SetExtendedTooltip(nullptr);
}
} // namespace

CFxUICommand* RibbonCommands::findOrCreate(CFxUI& ui, CFxUIGroup& mainGroup, const RibbonItem& item)
{
    if (CFxUICommand* command = ui.FindCommand(mainGroup.GetIdentifier(), item.id))
        return command;
    CFxUICommand* command = ui.CreateCommand(item.id, nullptr);
    describe(*command, item);
    mainGroup.GetCommands().Append(command);
    return command;
}
