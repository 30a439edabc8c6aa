#pragma once

#include "CFxUIList.h"
#include "CFxUIMenuEntry.h"
#include "CFxUIObject.h"

// A pull-down menu of the menu bar ("ID_MnFile", "ID_MnHelp", ...) and its entries, in order.
class FX_KERNEL_EXPORT CFxUIPullDownMenu : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIPullDownMenu() override;

    const CFxString& GetText() const { return m_text; }
    void SetText(const CFxString& text) { m_text = text; }
    CFxUIList<CFxUIMenuEntry>& GetEntries() { return m_entries; }
    const CFxUIList<CFxUIMenuEntry>& GetEntries() const { return m_entries; }

private:
    CFxString m_text;
    CFxUIList<CFxUIMenuEntry> m_entries;
};
