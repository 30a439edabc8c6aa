#include "HostMainGroup.h"
#include "LoadedRibbonItems.h"
#include "RibbonButtons.h"
#include "RibbonCommands.h"
#include "RibbonContainers.h"
#include "common/HostIdentifiers.h"
#include "common/IdentifierMatch.h"
#include "common/ProcessLifetime.h"

#include <QDebug>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>

namespace {
RibbonMenuItemWrapper* g_instance = nullptr;

CFxUIRibbonRow* findOrCreateRow(CFxUI& ui, CFxUIGroup& mainGroup, const RibbonItem& item)
{
    CFxUIRibbonTab* tab =
        RibbonContainers::findOrCreateTab(ui, mainGroup, item.tabId, item.tabText);
    if (!tab)
        return nullptr;
    CFxUIRibbonPanel* panel =
        RibbonContainers::findOrCreatePanel(ui, mainGroup, *tab, item.panelId, item.panelText);
    return RibbonContainers::findOrCreateRow(ui, *panel, item.rowId);
}

// After the row lost its last button: its panel leaves the tab, and the tab, when that was
// its last panel, leaves the ribbon (the workspace keeps it). False when the tab is gone.
bool pruneEmptyPanel(CFxUIGroup& mainGroup, const RibbonContainers::RowPlace& place,
                     const CFxString& tabId)
{
    place.tab->GetPanels().Remove(place.panel);
    CFxUIRibbonTab* tab = RibbonContainers::findTab(mainGroup, tabId);
    if (!tab)
        return false;
    if (tab->GetPanels().GetCount() == 0)
        mainGroup.GetRibbonTabs().Remove(tab);
    return true;
}

// The data-management split button of the Add-Ins row, found by its exact identifier.
// Every button looked at is written to the debug log on the way. The message names a fixed
// source, line and function instead of this code's own: whoever reads the debug log (a message
// pattern with %{file}, %{line} and %{function}, a sibling's support tools) finds these
// messages by those three. Kept: docs/lifecycle.md, row "Debug log source".
CFxUIRibbonButton* dataManagementButton(const CFxUIRibbonRow& row)
{
    for (CFxUIRibbonButton* button : row.GetButtons()) {
        QMessageLogger("RibbonMenuItemWrapper", 21,
                       "void __cdecl SetRibbonItemVisibility(const class QString &,bool)")
                .debug()
                .noquote()
            << button->GetText().toQString();
        if (IdentifierMatch::isDataManagementButton(button->GetIdentifier()))
            return button;
    }
    return nullptr;
}

// A hidden entry's text starts with one "~", which the host's ribbon does not show.
void setShown(CFxUIRibbonButton& entry, bool visible)
{
    QString text = entry.GetText().toQString();
    if (text.startsWith(QLatin1Char('~')))
        text.remove(0, 1);
    entry.SetText(visible ? text : QLatin1Char('~') + text);
}
} // namespace

RibbonMenuItemWrapper* RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance()
{
    if (!g_instance)
        g_instance = keptForProcess(new RibbonMenuItemWrapper);
    return g_instance;
}

// The order table alone places a button. Kept: docs/lifecycle.md, row "Position ignored".
void RibbonMenuItemWrapper::LoadRibbonMenu(RibbonItem* item, int /*position: decides nothing*/)
{
    CFxUI* ui = GetFxSystemServices()->GetUI();
    CFxUIGroup* mainGroup = HostMainGroup::find(ui);
    if (!item || !mainGroup)
        return;
    CFxUIRibbonRow* row = findOrCreateRow(*ui, *mainGroup, *item);
    if (!row || IdentifierMatch::firstInAnyCase(row->GetButtons(), CFxString(item->id)))
        return;
    CFxUICommand* command = RibbonCommands::findOrCreate(*ui, *mainGroup, *item);
    CFxUIRibbonButton* anchor = LoadedRibbonItems::predecessorOf(item->id);
    CFxUIRibbonButton* button = RibbonButtons::createTopLevel(*ui, *item, command);
    if (button)
        row->GetButtons().InsertAfter(anchor, button);
    LoadedRibbonItems::store(item->id, button);
    RibbonButtons::addChildren(*ui, *mainGroup, *item, button);
}

void RibbonMenuItemWrapper::UnloadRibbonMenu(const QString& itemId, const QString& tabId,
                                             const QString& panelId, const QString& rowId)
{
    CFxUI* ui = GetFxSystemServices()->GetUI();
    CFxUIGroup* mainGroup = HostMainGroup::find(ui);
    if (!mainGroup)
        return;
    const RibbonContainers::RowPlace place =
        RibbonContainers::findRow(*mainGroup, tabId, panelId, rowId);
    if (!place.row)
        return;
    place.row->GetButtons().Remove(
        IdentifierMatch::firstInAnyCase(place.row->GetButtons(), CFxString(itemId)));
    if (CFxUICommand* command = ui->FindCommand(mainGroup->GetIdentifier(), itemId))
        ui->DeleteCommand(command);
    ui->Update();
    if (place.row->GetButtons().GetCount() == 0 && !pruneEmptyPanel(*mainGroup, place, tabId))
        return;
    LoadedRibbonItems::store(itemId, nullptr);
}

void LoadRibbonMenuWrapper(RibbonItem* item, int position)
{
    RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance()->LoadRibbonMenu(item, position);
}

void UnLoadRibbonMenuWrapper(const QString& itemId)
{
    RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance()->UnloadRibbonMenu(
        itemId, QString::fromWCharArray(kAddInsTabId), QString::fromWCharArray(kAddInsPanelId),
        QString::fromWCharArray(kAddInsRowId));
}

void SetRibbonItemVisibility(const QString& itemId, bool visible)
{
    CFxUIGroup* mainGroup = HostMainGroup::find(GetFxSystemServices()->GetUI());
    if (!mainGroup)
        return;
    const RibbonContainers::RowPlace place = RibbonContainers::findRow(
        *mainGroup, CFxString(kAddInsTabId), CFxString(kAddInsPanelId), CFxString(kAddInsRowId));
    CFxUIRibbonButton* split = place.row ? dataManagementButton(*place.row) : nullptr;
    if (!split)
        return;
    IdentifierMatch::forEachInAnyCase(
        split->GetSubButtons(), CFxString(itemId),
        [visible](CFxUIRibbonButton& entry) { setShown(entry, visible); });
}
