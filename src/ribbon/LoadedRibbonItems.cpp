#include "LoadedRibbonItems.h"

#include "RibbonOrderTable.h"
#include "module/ProcessLifetime.h"

namespace {
QMap<QString, CFxUIRibbonButton*>* g_items = nullptr;

QMap<QString, CFxUIRibbonButton*>* makeItems()
{
    auto* items = new QMap<QString, CFxUIRibbonButton*>;
    for (const QString& id : RibbonOrderTable::identifiers())
        items->insert(id, nullptr);
    return items;
}
} // namespace

QMap<QString, CFxUIRibbonButton*>& LoadedRibbonItems::map()
{
    if (!g_items)
        g_items = keptForProcess(makeItems());
    return *g_items;
}

QMap<QString, CFxUIRibbonButton*>::iterator LoadedRibbonItems::find(const QString& id)
{
    const auto exact = map().find(id);
    if (exact != map().end())
        return exact;
    // Compared as CFxString::equalNoCase compares, without making a host string of each key.
    for (auto at = map().begin(); at != map().end(); ++at) {
        if (at.key().compare(id, Qt::CaseInsensitive) == 0)
            return at;
    }
    return map().end();
}

CFxUIRibbonButton* LoadedRibbonItems::button(const QString& id)
{
    const auto at = find(id);
    return at == map().end() ? nullptr : at.value();
}

void LoadedRibbonItems::store(const QString& id, CFxUIRibbonButton* button)
{
    const auto at = find(id);
    if (at == map().end())
        map().insert(id, button);
    else
        at.value() = button;
}

CFxUIRibbonButton* LoadedRibbonItems::predecessorOf(const QString& id)
{
    for (int order = RibbonOrderTable::orderOf(id) - 1; order >= 0; --order) {
        if (CFxUIRibbonButton* found = button(RibbonOrderTable::identifierAt(order)))
            return found;
    }
    return nullptr;
}
