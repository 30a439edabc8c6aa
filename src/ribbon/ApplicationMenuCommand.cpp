#include "ApplicationMenuCommand.h"

#include <CFxUI.h>

CFxUICommand* ApplicationMenuCommand::create(CFxUI& ui, const CFxString& identifier,
                                             const CFxString& macro, const CFxString& description,
                                             const CFxString& largeIcon, const CFxString& smallIcon)
{
    CFxUICommand* command = ui.CreateCommand(identifier, nullptr);
    command->SetMacro(macro);
    command->SetDescription(description);
    command->SetLargeIcon(largeIcon, CFxString());
    command->SetSmallIcon(smallIcon, CFxString());
    return command;
}
