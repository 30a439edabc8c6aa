#include "ViewcastPublishEntry.h"

#include "ribbon/ApplicationMenuCommand.h"
#include "ribbon/ApplicationMenuSearch.h"

#include <QObject>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <ExtCommands/ExportTableRibbon.h>

namespace {
constexpr const wchar_t kAnchorId[] = L"RSMI_10";
constexpr const wchar_t kEntryId[] = L"RSMI_PUBVIEWCAST";

CFxUICommand* createPublishCommand(CFxUI& ui)
{
    // The resource name of the small icon has always carried the extension twice; the entry
    // keeps it so.
    return ApplicationMenuCommand::create(
        ui, CFxString(L"ID_PUBVIEWCAST"), CFxString(L"_VIEWCAST"),
        QObject::tr("Opens the drawings in Viewcast"),
        CFxString(L":/images/BFResources/Resources/vcst_publish_24.png"),
        CFxString(L":/images/BFResources/Resources/vcst_Publish_16.png.png"));
}

CFxUIRibbonSystemMenuItem* firstSeparator(const CFxUIList<CFxUIRibbonSystemMenuItem>& entries)
{
    const CFxString separatorId(CFxUIRibbonSystemMenuItem::separatorIdentifier());
    for (CFxUIRibbonSystemMenuItem* entry : entries) {
        if (entry->GetIdentifier().equalNoCase(separatorId))
            return entry;
    }
    return nullptr;
}
} // namespace

CFxUIRibbonSystemMenuItem* ViewcastPublishEntry::applicationMenu(CFxUI* ui)
{
    const CFxUIGroup* mainGroup = ExportTableRibbon::GetExportTableInstance()->GetMainGroup(ui);
    return mainGroup ? ApplicationMenuSearch::top(*mainGroup) : nullptr;
}

void ViewcastPublishEntry::add()
{
    CFxUI* ui = GetFxSystemServices()->GetUI();
    CFxUIRibbonSystemMenuItem* menu = applicationMenu(ui);
    if (!menu)
        return;
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = menu->GetSubItems();
    CFxUIRibbonSystemMenuItem* anchor =
        ApplicationMenuSearch::matchOrLast(entries, CFxString(kAnchorId));
    if (ExportTableRibbon::GetExportTableInstance()->SearchRibbonMenuItem(menu,
                                                                          CFxString(kEntryId)))
        return;
    CFxUICommand* command = createPublishCommand(*ui);
    CFxUIRibbonSystemMenuItem* separator =
        ui->CreateRibbonSystemMenuItem(CFxString(CFxUIRibbonSystemMenuItem::separatorIdentifier()));
    const bool separated = anchor && entries.InsertAfter(anchor, separator);
    CFxUIRibbonSystemMenuItem* entry = ui->CreateRibbonSystemMenuItem(CFxString(kEntryId));
    entry->SetText(CFxString(L"Publish Viewcast"));
    entry->AttachCommand(command);
    // Without an anchor the entry is made but placed nowhere.
    if (separated)
        entries.InsertAfter(separator, entry);
}

void ViewcastPublishEntry::remove()
{
    CFxUIRibbonSystemMenuItem* menu = applicationMenu(GetFxSystemServices()->GetUI());
    if (!menu)
        return;
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = menu->GetSubItems();
    entries.Remove(firstSeparator(entries));
    entries.Remove(ExportTableRibbon::GetExportTableInstance()->SearchRibbonMenuItem(
        menu, CFxString(kEntryId)));
}
