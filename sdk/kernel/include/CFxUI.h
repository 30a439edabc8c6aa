#pragma once

#include "CFxUIGroup.h"
#include "CFxUIGroupIterator.h"
#include "CFxUIList.h"
#include "CFxUIMenuEntry.h"
#include "CFxUIRibbonButton.h"
#include "CFxUIRibbonRow.h"
#include "CFxUIRibbonSystemMenuItem.h"
#include "CFxUIWorkspace.h"
#include "FxKernelExport.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

// The host's user-interface model: menu groups with their pull-down menus, ribbon tabs,
// panels, rows and buttons, commands and application menus; the workspaces; and the ribbon's
// system menu. It owns every object it creates: an object removed from a list stays alive
// until the model goes, so a stale pointer never dangles (a deleted command excepted).
// Identifiers are matched without regard to letter case. What a call costs does not depend on
// how many objects the model ever made: commands are found through their list's index, and a
// command being deleted knows what holds it.
class FX_KERNEL_EXPORT CFxUI
{
public:
    virtual ~CFxUI();
    CFxUI(const CFxUI&) = delete;
    CFxUI& operator=(const CFxUI&) = delete;

    // The caller deletes the iterator.
    CFxUIGroupIterator* NewGroupIterator() const;
    CFxUIGroup* GetReferenceMenuGroup() const { return m_referenceGroup; }

    CFxUIWorkspace* FindWorkspace(const CFxString& name) const;

    // The root of the ribbon's system menu; its sub-items are the menu.
    CFxUIRibbonSystemMenuItem* GetRibbonSystemMenu() const { return m_systemMenu; }

    CFxUIMenuItem* CreateMenuItem();
    // The entry is shown at the end of `menu`.
    CFxUIMenuEntry* CreateMenuEntry(CFxUIPullDownMenu* menu);
    CFxUIRibbonTab* CreateRibbonTab(const CFxString& identifier);
    CFxUIRibbonPanel* CreateRibbonPanel(const CFxString& identifier);
    CFxUIRibbonRow* CreateRibbonRow(const CFxString& identifier);
    // `kind` is one of CFxUIRibbonButton::Kind; null for any other code.
    CFxUIRibbonButton* CreateRibbonButton(int kind, const CFxString& identifier);
    CFxUIRibbonSystemMenuItem* CreateRibbonSystemMenuItem(const CFxString& identifier);

    // A new command; with an owner it is also added to the owner's command list.
    CFxUICommand* CreateCommand(const CFxString& identifier, CFxUIGroup* owner);
    // The command of that identifier in the command list of the group `groupIdentifier`.
    CFxUICommand* FindCommand(const CFxString& groupIdentifier,
                              const CFxString& commandIdentifier) const;
    // Takes the command out of every command list, button and menu entry, and destroys it.
    void DeleteCommand(CFxUICommand* command);

    // Tells the host's window to show the model as it is now.
    void Update();

protected:
    // The host makes the model and puts its groups and workspaces in place (CFxHostUI).
    CFxUI();

private:
    friend class CFxHostUI;

    // Makes an object that the model owns from now on.
    template <class T, class... Args>
    T* make(Args&&... args)
    {
        auto object = std::make_unique<T>(std::forward<Args>(args)...);
        T* raw = object.get();
        m_objects.emplace(raw, std::move(object));
        return raw;
    }

    std::unordered_map<const CFxUIObject*, std::unique_ptr<CFxUIObject>> m_objects;
    // Every group made, in or out of the model, whose command lists a deleted command leaves.
    std::vector<CFxUIGroup*> m_madeGroups;
    CFxUIList<CFxUIGroup> m_groups;
    CFxUIList<CFxUIWorkspace> m_workspaces;
    CFxUIGroup* m_referenceGroup = nullptr;
    CFxUIRibbonSystemMenuItem* m_systemMenu = nullptr;
    std::function<void()> m_updateHandler;
};
