#include "RibbonModel.h"

#include <CFxUI.h>

namespace {
template <class T>
T* exactly(const CFxUIList<T>& list, const QString& id)
{
    for (T* item : list) {
        if (item->GetIdentifier().toQString() == id)
            return item;
    }
    return nullptr;
}
} // namespace

RibbonItem RibbonModel::addInsRecord(const QString& id, const QString& type)
{
    RibbonItem item = recordIn(id, kAddInsTab, kAddInsPanel, kAddInsRow);
    item.type = type;
    return item;
}

RibbonItem RibbonModel::recordIn(const QString& id, const QString& tabId, const QString& panelId,
                                 const QString& rowId)
{
    RibbonItem item;
    item.text = id.toLower();
    item.id = id;
    item.rowId = rowId;
    item.tabText = QStringLiteral("Add-Ins");
    item.tabId = tabId;
    item.panelText = QStringLiteral("Add-Ins");
    item.panelId = panelId;
    item.commandName = QStringLiteral("RUN_") + id;
    item.description = QStringLiteral("Runs ") + id;
    item.type = QStringLiteral("command");
    return item;
}

CFxUIRibbonRow* RibbonModel::row(const CFxUIGroup& group, const QString& tabId,
                                 const QString& panelId, const QString& rowId)
{
    const CFxUIRibbonTab* tab = exactly(group.GetRibbonTabs(), tabId);
    const CFxUIRibbonPanel* panel = tab ? exactly(tab->GetPanels(), panelId) : nullptr;
    return panel ? exactly(panel->GetRows(), rowId) : nullptr;
}

CFxUIRibbonRow* RibbonModel::addInsRow(const CFxUIGroup& group)
{
    return row(group, kAddInsTab, kAddInsPanel, kAddInsRow);
}

QStringList RibbonModel::addInsButtons(const CFxUIGroup& group)
{
    const CFxUIRibbonRow* found = addInsRow(group);
    return found ? ids(found->GetButtons()) : QStringList();
}

CFxUIRibbonButton* RibbonModel::addInsButton(const CFxUIGroup& group, const QString& id)
{
    const CFxUIRibbonRow* found = addInsRow(group);
    return found ? exactly(found->GetButtons(), id) : nullptr;
}

CFxUIRibbonSystemMenuItem* RibbonModel::menuEntry(const CFxUIGroup& group, const QStringList& path)
{
    CFxUIRibbonSystemMenuItem* entry = nullptr;
    for (const QString& id : path) {
        entry = exactly(entry ? entry->GetSubItems() : group.GetApplicationMenu(), id);
        if (!entry)
            return nullptr;
    }
    return entry;
}

QStringList RibbonModel::texts(const CFxUIList<CFxUIRibbonButton>& buttons)
{
    QStringList result;
    for (const CFxUIRibbonButton* button : buttons)
        result << text(button->GetText());
    return result;
}

QString RibbonModel::text(const CFxString& value)
{
    return value.toQString();
}
