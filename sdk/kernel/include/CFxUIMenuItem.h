#pragma once

#include "CFxUIObject.h"

// A pull-down menu item as a menu group defines it: its menu text, its status-bar text and
// the command macro it runs. A menu entry shows it in a pull-down menu.
class FX_KERNEL_EXPORT CFxUIMenuItem : public CFxUIObject
{
public:
    CFxUIMenuItem();
    ~CFxUIMenuItem() override;

    const CFxString& GetMenuText() const { return m_menuText; }
    void SetMenuText(const CFxString& text) { m_menuText = text; }
    const CFxString& GetStatusText() const { return m_statusText; }
    void SetStatusText(const CFxString& text) { m_statusText = text; }
    const CFxString& GetMacro() const { return m_macro; }
    void SetMacro(const CFxString& macro) { m_macro = macro; }

private:
    CFxString m_menuText;
    CFxString m_statusText;
    CFxString m_macro;
};
