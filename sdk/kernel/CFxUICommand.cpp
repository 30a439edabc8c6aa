#include "CFxUICommand.h"

void CFxUICommand::SetSmallIcon(const CFxString& path, const CFxString& secondPath)
{
    m_smallIcon[0] = path;
    m_smallIcon[1] = secondPath;
}

void CFxUICommand::SetLargeIcon(const CFxString& path, const CFxString& secondPath)
{
    m_largeIcon[0] = path;
    m_largeIcon[1] = secondPath;
}

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUICommand::~CFxUICommand() = default;
