#include "CFxUIRibbonSystemMenuItem.h"

#include "CFxUICommand.h"

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIRibbonSystemMenuItem::~CFxUIRibbonSystemMenuItem() = default;

void CFxUIRibbonSystemMenuItem::AttachCommand(CFxUICommand* command)
{
    if (m_command)
        m_command->RemoveHolder(this);
    m_command = command;
    if (command)
        command->AddHolder(this);
}
