#include "ApplicationMenuCommand.h"
#include "ApplicationMenuSearch.h"
#include "HostMainGroup.h"
#include "common/ProcessLifetime.h"

#include <QObject>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <ExtCommands/ExportTableRibbon.h>

namespace {
ExportTableRibbon* g_instance = nullptr;

constexpr const wchar_t kExportMenuId[] = L"RSMI_10";
constexpr const wchar_t kAnchorId[] = L"RSMI_13";
constexpr const wchar_t kEntryId[] = L"RSMI_EXPORTTABLE";

CFxUICommand* createExportTableCommand(CFxUI& ui)
{
    return ApplicationMenuCommand::create(
        ui, CFxString(L"ID_EXPORTTABLE"), CFxString(L"_EXPORTTABLE"),
        QObject::tr("Export table entity to .xlsx, .xls, .csv file"),
        CFxString(L":/images/BFResources/Resources/PK_BOM_EXPORT_large.png"),
        CFxString(L":/images/BFResources/Resources/PK_BOM_EXPORT_small.png"));
}

// A separator, then the entry, after "RSMI_13" (or after the last sub-entry without it).
void addEntry(CFxUI& ui, CFxUIRibbonSystemMenuItem& exportMenu)
{
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = exportMenu.GetSubItems();
    CFxUIRibbonSystemMenuItem* anchor =
        ApplicationMenuSearch::matchOrLast(entries, CFxString(kAnchorId));
    if (ApplicationMenuSearch::child(&exportMenu, CFxString(kEntryId)))
        return;
    CFxUICommand* command = createExportTableCommand(ui);
    CFxUIRibbonSystemMenuItem* separator =
        ui.CreateRibbonSystemMenuItem(CFxString(CFxUIRibbonSystemMenuItem::separatorIdentifier()));
    entries.InsertAfter(anchor, separator);
    CFxUIRibbonSystemMenuItem* entry = ui.CreateRibbonSystemMenuItem(CFxString(kEntryId));
    entry->SetText(CFxString(L"Export Table"));
    entry->AttachCommand(command);
    entries.InsertAfter(separator, entry);
}

// Takes out the entries "RSMI_EXPORTTABLE" only; the separator and the command stay, so that
// loading again adds a separator of its own. The walk goes on at the next index after a
// removal, as the host's menu code does.
void removeEntries(CFxUIRibbonSystemMenuItem& exportMenu)
{
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = exportMenu.GetSubItems();
    const CFxString entryId(kEntryId);
    for (int i = 0; i < entries.GetCount(); ++i) {
        if (entries.GetAt(i)->GetIdentifier().equalNoCase(entryId))
            entries.Remove(ApplicationMenuSearch::child(&exportMenu, entryId));
    }
}

// Calls `change` with every sub-entry "RSMI_10" of the application menu's top entry.
template <class Change>
void forEachExportMenu(CFxUIGroup& mainGroup, Change change)
{
    CFxUIRibbonSystemMenuItem* top = ApplicationMenuSearch::top(mainGroup);
    if (!top)
        return;
    const CFxString exportMenuId(kExportMenuId);
    const CFxUIList<CFxUIRibbonSystemMenuItem>& entries = top->GetSubItems();
    for (int i = 0; i < entries.GetCount(); ++i) {
        if (entries.GetAt(i)->GetIdentifier().equalNoCase(exportMenuId))
            change(*entries.GetAt(i));
    }
}
} // namespace

ExportTableRibbon* ExportTableRibbon::GetExportTableInstance()
{
    if (!g_instance)
        g_instance = keptForProcess(new ExportTableRibbon);
    return g_instance;
}

CFxUIGroup* ExportTableRibbon::GetMainGroup(CFxUI* ui)
{
    return HostMainGroup::find(ui);
}

CFxUIRibbonSystemMenuItem*
ExportTableRibbon::SearchRibbonMenuItem(CFxUIRibbonSystemMenuItem* parent, const CFxString& id)
{
    return ApplicationMenuSearch::child(parent, id);
}

void ExportTableRibbon::LoadExportTableRibbonMenu()
{
    CFxUI* ui = GetFxSystemServices()->GetUI();
    if (CFxUIGroup* mainGroup = GetMainGroup(ui))
        forEachExportMenu(
            *mainGroup, [ui](CFxUIRibbonSystemMenuItem& exportMenu) { addEntry(*ui, exportMenu); });
}

void ExportTableRibbon::UnLoadExportTableRibbonMenu()
{
    if (CFxUIGroup* mainGroup = GetMainGroup(GetFxSystemServices()->GetUI()))
        forEachExportMenu(*mainGroup, removeEntries);
}

void LoadExportTableRibbonMenuWrapper()
{
    ExportTableRibbon::GetExportTableInstance()->LoadExportTableRibbonMenu();
}

void UnLoadExportTableRibbonMenuWrapper()
{
    ExportTableRibbon::GetExportTableInstance()->UnLoadExportTableRibbonMenu();
}
