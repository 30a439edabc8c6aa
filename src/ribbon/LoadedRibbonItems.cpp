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
    // The table outlives the sibling that named the button, and a text whose case folding
    // changes nothing comes back sharing the sibling's own (often constant) text: the key is
    // copied into the module's own memory.
    const QString folded = IdentifierMatch::anyCaseKey(id);
    map()[QString(folded.constData(), folded.size())] = button;
}

CFxUIRibbonButton* LoadedRibbonItems::predecessorOf(const QString& id)
{
    for (int order = RibbonOrderTable::orderOf(id) - 1; order >= 0; --order) {
        if (CFxUIRibbonButton* found = button(RibbonOrderTable::identifierAt(order)))
            return found;
    }
    return nullptr;
}
