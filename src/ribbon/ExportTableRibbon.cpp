#include "ApplicationMenuCommand.h"
#include "ApplicationMenuEntry.h"
#include "ApplicationMenuSearch.h"
#include "HostMainGroup.h"
#include "common/HostIdentifiers.h"
#include "common/IdentifierMatch.h"
#include "common/OnePassRemoval.h"
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

// Takes out the entries "RSMI_EXPORTTABLE" only, in one pass. Kept: docs/lifecycle.md, row
// "Export-table entry".
void removeEntries(CFxUIRibbonSystemMenuItem& exportMenu)
{
    const CFxString entryId(kEntryId);
    removeInOnePass(
        exportMenu.GetSubItems(),
        [&entryId](const CFxUIRibbonSystemMenuItem& entry) {
            return IdentifierMatch::inAnyCase(entry.GetIdentifier(), entryId);
        },
        [&](CFxUIRibbonSystemMenuItem*) {
            return ApplicationMenuSearch::child(&exportMenu, entryId);
        });
}

// Calls `change` with every export menu under the application menu's top entry.
template <class Change>
void forEachExportMenu(CFxUIGroup& mainGroup, Change change)
{
    if (CFxUIRibbonSystemMenuItem* top = ApplicationMenuSearch::top(mainGroup))
        IdentifierMatch::forEachInAnyCase(top->GetSubItems(), CFxString(kExportMenuId), change);
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
