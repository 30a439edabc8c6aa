#include "LoadedRibbonItems.h"

#include "RibbonOrderTable.h"
#include "common/IdentifierMatch.h"
#include "common/ProcessLifetime.h"

namespace {
QHash<QString, CFxUIRibbonButton*>* g_items = nullptr;

QHash<QString, CFxUIRibbonButton*>* makeItems()
{
    auto* items = new QHash<QString, CFxUIRibbonButton*>;
    for (const QString& id : RibbonOrderTable::identifiers())
        items->insert(IdentifierMatch::anyCaseKey(id), nullptr);
    return items;
}
} // namespace

QHash<QString, CFxUIRibbonButton*>& LoadedRibbonItems::map()
{
    if (!g_items)
        g_items = keptForProcess(makeItems());
    return *g_items;
}

CFxUIRibbonButton* LoadedRibbonItems::button(const QString& id)
{
    return map().value(IdentifierMatch::anyCaseKey(id));
}

void LoadedRibbonItems::store(const QString& id, CFxUIRibbonButton* button)
{
    map()[IdentifierMatch::anyCaseKey(id)] = button;
}

CFxUIRibbonButton* LoadedRibbonItems::predecessorOf(const QString& id)
{
    for (int order = RibbonOrderTable::orderOf(id) - 1; order >= 0; --order) {
        if (CFxUIRibbonButton* found = button(RibbonOrderTable::identifierAt(order)))
            return found;
    }
    return nullptr;
}
