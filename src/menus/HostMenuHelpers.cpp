#include "HostMenuHelpers.h"

#include "common/HostIdentifiers.h"

#include <CFxSystemServices.h>
#include <CFxUI.h>

#include <memory>

namespace {
CFxUI* hostUI()
{
    CFxSystemServices* services = GetFxSystemServices();
    return services ? services->GetUI() : nullptr;
}

CFxUIPullDownMenu* helpMenuOf(const CFxUIGroup& group)
{
    const CFxUIList<CFxUIPullDownMenu>& menus = group.GetPullDownMenus();
    for (int index = 0; index < menus.GetCount(); ++index) {
        CFxUIPullDownMenu* menu = menus.GetAt(index);
        if (IdentifierMatch::isHelpMenu(menu->GetIdentifier()))
            return menu;
    }
    return nullptr;
}

CFxUIRibbonSystemMenuItem* createSystemMenuItem(CFxUI& ui, const CFxString& menuText,
                                                const CFxString& macro, bool separator)
{
    if (separator)
        return ui.CreateRibbonSystemMenuItem(CFxUIRibbonSystemMenuItem::separatorIdentifier());
    CFxUIRibbonSystemMenuItem* item = ui.CreateRibbonSystemMenuItem(CFxString());
    item->SetText(menuText);
    CFxUICommand* command = ui.CreateCommand(CFxString(), nullptr);
    command->SetMacro(macro);
    item->AttachCommand(command);
    return item;
}
} // namespace

CFxUIPullDownMenu* HostMenuHelpers::findHelpMenu(const CFxString& identifier)
{
    CFxUI* ui = hostUI();
    CFxUIGroup* reference = ui ? ui->GetReferenceMenuGroup() : nullptr;
    if (!reference)
        return nullptr;
    const std::unique_ptr<CFxUIGroupIterator> groups(ui->NewGroupIterator());
    for (; !groups->Done(); groups->Next()) {
        CFxUIGroup* group = groups->Current();
        if (group == reference)
            continue;
        // The menu found is the Help menu, so any other identifier asked for finds nothing.
        CFxUIPullDownMenu* menu = helpMenuOf(*group);
        if (menu && IdentifierMatch::isHelpMenu(identifier))
            return menu;
    }
    return nullptr;
}

bool HostMenuHelpers::containsItem(const CFxString& menuIdentifier, const CFxString& itemIdentifier)
{
    const CFxUIPullDownMenu* menu = findHelpMenu(menuIdentifier);
    if (!menu)
        return false;
    return IdentifierMatch::firstInAnyCase(menu->GetEntries(), itemIdentifier) != nullptr;
}

CFxUIMenuEntry* HostMenuHelpers::addPullDownItem(const CFxString& menuText,
                                                 const CFxString& identifier,
                                                 const CFxString& macro,
                                                 const CFxString& statusText, CFxUIGroup* group)
{
    if (containsItem(kHelpMenuId, identifier))
        return nullptr;
    CFxUI* ui = hostUI();
    CFxUIPullDownMenu* menu = findHelpMenu(kHelpMenuId);
    if (!ui || !menu)
        return nullptr;
    CFxUIMenuItem* item = ui->CreateMenuItem();
    item->SetStatusText(statusText);
    item->SetMenuText(menuText);
    item->SetIdentifier(identifier);
    item->SetMacro(macro);
    CFxUIMenuEntry* entry = ui->CreateMenuEntry(menu);
    entry->SetText(menuText);
    entry->BindItem(item);
    if (group)
        group->GetMenuItems().Append(item);
    return entry;
}

CFxUIGroup* HostMenuHelpers::findItemGroup()
{
    CFxUI* ui = hostUI();
    if (!ui)
        return nullptr;
    CFxUIGroup* reference = ui->GetReferenceMenuGroup();
    const std::unique_ptr<CFxUIGroupIterator> groups(ui->NewGroupIterator());
    for (; !groups->Done(); groups->Next()) {
        if (groups->Current()->IsEditable())
            return groups->Current();
    }
    return reference;
}

void HostMenuHelpers::insertRibbonSystemMenuItem(const CFxString& menuText, const CFxString& macro,
                                                 bool separator)
{
    CFxUI* ui = hostUI();
    CFxUIRibbonSystemMenuItem* systemMenu = ui ? ui->GetRibbonSystemMenu() : nullptr;
    if (!systemMenu)
        return;
    CFxUIRibbonSystemMenuItem* item = createSystemMenuItem(*ui, menuText, macro, separator);
    CFxUIList<CFxUIRibbonSystemMenuItem>& items = systemMenu->GetSubItems();
    for (int index = 0; index < items.GetCount(); ++index) {
        if (IdentifierMatch::isSystemMenuAbout(items.GetAt(index)->GetIdentifier())) {
            items.InsertAt(index, item);
            return;
        }
    }
}
