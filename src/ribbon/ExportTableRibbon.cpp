#include "ApplicationMenuCommand.h"
#include "ApplicationMenuEntry.h"
#include "ApplicationMenuSearch.h"
#include "HostMainGroup.h"
#include "common/HostIdentifiers.h"
#include "common/ProcessLifetime.h"

#include <QObject>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <ExtCommands/ExportTableRibbon.h>

namespace {
ExportTableRibbon* g_instance = nullptr;

constexpr wchar_t kEntryId[] = L"RSMI_EXPORTTABLE";

CFxUICommand* createExportTableCommand(CFxUI& ui)
{
    return ApplicationMenuCommand::create(
        ui, CFxString(L"ID_EXPORTTABLE"), CFxString(L"_EXPORTTABLE"),
        QObject::tr("Export table entity to .xlsx, .xls, .csv file"),
        CFxString(L":/images/BFResources/Resources/PK_BOM_EXPORT_large.png"),
        CFxString(L":/images/BFResources/Resources/PK_BOM_EXPORT_small.png"));
}

// A separator, then the entry, after the export menu's anchor (or after its last sub-entry
// without it).
void addEntry(CFxUI& ui, CFxUIRibbonSystemMenuItem& exportMenu)
{
    const ApplicationMenuEntry entry(CFxString(kEntryId), CFxString(L"Export Table"),
                                     createExportTableCommand);
    entry.addAfter(ui, exportMenu, CFxString(kExportTableAnchorId),
                   ApplicationMenuEntry::WithoutAnchor::PlaceFirst);
}

// Takes out the entries "RSMI_EXPORTTABLE" only, on purpose. The separator stays: separators
// all carry one identifier and no owner, so the one that loading put in cannot be told from
// the host's own (loading again adds one more). The command stays with the UI model that made
// it. One pass, moving on after a removal too: loading puts in one entry, and that is the one
// taken out, while an entry of the same identifier that closes the gap is left alone.
void removeEntries(CFxUIRibbonSystemMenuItem& exportMenu)
{
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = exportMenu.GetSubItems();
    const CFxString entryId(kEntryId);
    for (int i = 0; i < entries.GetCount(); ++i) {
        if (entries.GetAt(i)->GetIdentifier().equalNoCase(entryId))
            entries.Remove(ApplicationMenuSearch::child(&exportMenu, entryId));
    }
}

// Calls `change` with every export menu under the application menu's top entry.
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
