#pragma once

#include "CFxUI.h"
#include "FxKernelExport.h"

#include <functional>

// The host's side of the user-interface model that modules see as CFxUI: the host makes the
// model, puts its menu groups (which one is the main group, which one the reference group,
// which ones take items at run time) and workspaces in place, and hears when a module asks for
// the model to be shown anew.
class FX_KERNEL_EXPORT CFxHostUI final : public CFxUI
{
public:
    CFxHostUI();
    ~CFxHostUI() override;

    CFxUIList<CFxUIGroup>& GetMenuGroups() { return m_groups; }
    const CFxUIList<CFxUIGroup>& GetMenuGroups() const { return m_groups; }
    void SetReferenceMenuGroup(CFxUIGroup* group) { m_referenceGroup = group; }

    CFxUIList<CFxUIWorkspace>& GetWorkspaces() { return m_workspaces; }
    const CFxUIList<CFxUIWorkspace>& GetWorkspaces() const { return m_workspaces; }

    CFxUIGroup* CreateMenuGroup(const CFxString& identifier);
    CFxUIPullDownMenu* CreatePullDownMenu(const CFxString& identifier);
    CFxUIWorkspace* CreateWorkspace(const CFxString& name);

    // Whether `group` is the main group, and whether it takes menu items added at run time.
    static void SetMainGroup(CFxUIGroup& group, bool main);
    static void SetEditable(CFxUIGroup& group, bool editable);

    // Called by Update(), after its event.
    void SetUpdateHandler(std::function<void()> handler);
};
