#pragma once

#include "CFxUIList.h"
#include "CFxUIObject.h"

class CFxUICommand;

// An entry of the ribbon's application menu or system menu, with its sub-entries. An entry
// whose identifier is "ID_SEPARATOR" is drawn as a separator line.
class FX_KERNEL_EXPORT CFxUIRibbonSystemMenuItem : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIRibbonSystemMenuItem() override;

    static const wchar_t* separatorIdentifier() { return L"ID_SEPARATOR"; }
    bool IsSeparator() const { return GetIdentifier() == CFxString(separatorIdentifier()); }

    const CFxString& GetText() const { return m_text; }
    void SetText(const CFxString& text) { m_text = text; }
    CFxUICommand* GetCommand() const { return m_command; }
    void AttachCommand(CFxUICommand* command);

    CFxUIList<CFxUIRibbonSystemMenuItem>& GetSubItems() { return m_subItems; }
    const CFxUIList<CFxUIRibbonSystemMenuItem>& GetSubItems() const { return m_subItems; }

private:
    CFxString m_text;
    CFxUICommand* m_command = nullptr;
    CFxUIList<CFxUIRibbonSystemMenuItem> m_subItems;
};
