#include "CFxUIRibbonButton.h"

#include "CFxUICommand.h"

CFxUIRibbonButton::CFxUIRibbonButton(int kind, const CFxString& identifier)
    : CFxUIObject(identifier), m_kind(kind)
{}

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIRibbonButton::~CFxUIRibbonButton() = default;

void CFxUIRibbonButton::AttachCommand(CFxUICommand* command)
{
    if (m_command)
        m_command->RemoveHolder(this);
    m_command = command;
    if (command)
        command->AddHolder(this);
}
