#include "CFxUIMenuEntry.h"

#include "CFxUIMenuItem.h"

CFxUIMenuEntry::CFxUIMenuEntry() : CFxUIObject(CFxString()) {}

void CFxUIMenuEntry::BindItem(CFxUIMenuItem* item)
{
    m_item = item;
    SetIdentifier(item ? item->GetIdentifier() : CFxString());
}
