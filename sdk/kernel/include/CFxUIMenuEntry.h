#pragma once

#include "CFxUIObject.h"

class CFxUIMenuItem;

// What a pull-down menu shows: a text, bound to the menu item that it runs. Its identifier is
// its item's (an entry bound to nothing has none).
class FX_KERNEL_EXPORT CFxUIMenuEntry : public CFxUIObject
{
public:
    CFxUIMenuEntry();
    ~CFxUIMenuEntry() override;

    const CFxString& GetText() const { return m_text; }
    void SetText(const CFxString& text) { m_text = text; }
    CFxUIMenuItem* GetItem() const { return m_item; }
    void BindItem(CFxUIMenuItem* item);

private:
    CFxString m_text;
    CFxUIMenuItem* m_item = nullptr;
};
