#include "ViewcastPublishEntry.h"

#include "common/HostIdentifiers.h"
#include "ribbon/ApplicationMenuCommand.h"
#include "ribbon/ApplicationMenuEntry.h"
#include "ribbon/ApplicationMenuSearch.h"
#include "ribbon/HostMainGroup.h"

#include <QObject>

#include <CFxSystemServices.h>
#include <CFxUI.h>

namespace {
constexpr wchar_t kEntryId[] = L"RSMI_PUBVIEWCAST";

CFxUICommand* createPublishCommand(CFxUI& ui)
{
    // The small icon's name carries its extension twice and names no resource. Kept:
    // docs/lifecycle.md, row "Resource names".
    return ApplicationMenuCommand::create(
        ui, CFxString(L"ID_PUBVIEWCAST"), CFxString(L"_VIEWCAST"),
        QObject::tr("Opens the drawings in Viewcast"),
        CFxString(L":/images/BFResources/Resources/vcst_publish_24.png"),
        CFxString(L":/images/BFResources/Resources/vcst_Publish_16.png.png"));
}

// The application menu's top entry; null without a main group.
CFxUIRibbonSystemMenuItem* applicationMenu(const CFxUI* ui)
{
    const CFxUIGroup* mainGroup = HostMainGroup::find(ui);
    return mainGroup ? ApplicationMenuSearch::top(*mainGroup) : nullptr;
}

} // namespace

void ViewcastPublishEntry::add()
{
    CFxUI* ui = GetFxSystemServices()->GetUI();
    CFxUIRibbonSystemMenuItem* menu = applicationMenu(ui);
    if (!menu)
        return;
    const ApplicationMenuEntry entry(CFxString(kEntryId), CFxString(L"Publish Viewcast"),
                                     createPublishCommand);
    // The entry stands beside the export menu, among the top entry's sub-entries.
    entry.addAfter(*ui, *menu, CFxString(kExportMenuId),
                   ApplicationMenuEntry::WithoutAnchor::PlaceNowhere);
}

// The first separator of the menu goes, whoever put it there, then the entry. Kept:
// docs/lifecycle.md, row "Publish entry".
void ViewcastPublishEntry::remove()
{
    CFxUIRibbonSystemMenuItem* menu = applicationMenu(GetFxSystemServices()->GetUI());
    if (!menu)
        return;
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = menu->GetSubItems();
    entries.Remove(ApplicationMenuSearch::child(
        menu, CFxString(CFxUIRibbonSystemMenuItem::separatorIdentifier())));
    entries.Remove(ApplicationMenuSearch::child(menu, CFxString(kEntryId)));
}
