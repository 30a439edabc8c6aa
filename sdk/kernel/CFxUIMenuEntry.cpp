#include "CFxUIMenuEntry.h"

#include "CFxUIMenuItem.h"

CFxUIMenuEntry::CFxUIMenuEntry() : CFxUIObject(CFxString()) {}

void CFxUIMenuEntry::BindItem(CFxUIMenuItem* item)
{
    m_item = item;
    SetIdentifier(item ? item->GetIdentifier() : CFxString());
}

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIMenuEntry::~CFxUIMenuEntry() = default;
