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
