#pragma once

#include "CFxUICommand.h"
#include "CFxUIList.h"
#include "CFxUIMenuItem.h"
#include "CFxUIObject.h"
#include "CFxUIPullDownMenu.h"
#include "CFxUIRibbonPanel.h"
#include "CFxUIRibbonSystemMenuItem.h"
#include "CFxUIRibbonTab.h"

// A menu group: one customisation file's worth of user interface. The main group holds the
// host's own ribbon and application menu; the reference group is the read-only copy that the
// host keeps of its shipped customisation, and the others are loaded on top of it.
class FX_KERNEL_EXPORT CFxUIGroup : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIGroup() override;

    bool IsMainGroup() const { return m_main; }
    // Whether the group takes menu items added at run time (a read-only group does not).
    bool IsEditable() const { return m_editable; }

    CFxUIList<CFxUIPullDownMenu>& GetPullDownMenus() { return m_menus; }
    const CFxUIList<CFxUIPullDownMenu>& GetPullDownMenus() const { return m_menus; }
    CFxUIList<CFxUIMenuItem>& GetMenuItems() { return m_items; }
    const CFxUIList<CFxUIMenuItem>& GetMenuItems() const { return m_items; }
    CFxUIList<CFxUIRibbonTab>& GetRibbonTabs() { return m_tabs; }
    const CFxUIList<CFxUIRibbonTab>& GetRibbonTabs() const { return m_tabs; }
    CFxUIList<CFxUIRibbonPanel>& GetRibbonPanels() { return m_panels; }
    const CFxUIList<CFxUIRibbonPanel>& GetRibbonPanels() const { return m_panels; }
    CFxUIList<CFxUICommand>& GetCommands() { return m_commands; }
    const CFxUIList<CFxUICommand>& GetCommands() const { return m_commands; }
    CFxUIList<CFxUIRibbonSystemMenuItem>& GetApplicationMenu() { return m_applicationMenu; }
    const CFxUIList<CFxUIRibbonSystemMenuItem>& GetApplicationMenu() const
    {
        return m_applicationMenu;
    }

private:
    // The host says which group is which as it makes the model.
    friend class CFxHostUI;

    bool m_main = false;
    bool m_editable = false;
    CFxUIList<CFxUIPullDownMenu> m_menus;
    CFxUIList<CFxUIMenuItem> m_items;
    CFxUIList<CFxUIRibbonTab> m_tabs;
    CFxUIList<CFxUIRibbonPanel> m_panels;
    CFxUIList<CFxUICommand> m_commands;
    CFxUIList<CFxUIRibbonSystemMenuItem> m_applicationMenu;
};
