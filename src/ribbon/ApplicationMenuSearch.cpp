#include "ApplicationMenuSearch.h"

#include "common/HostIdentifiers.h"
#include "common/IdentifierMatch.h"

#include <CFxUIGroup.h>

CFxUIRibbonSystemMenuItem*
ApplicationMenuSearch::matchOrLast(const CFxUIList<CFxUIRibbonSystemMenuItem>& entries,
                                   const CFxString& id)
{
    CFxUIRibbonSystemMenuItem* found = IdentifierMatch::firstInAnyCase(entries, id);
    return found ? found : entries.GetAt(entries.GetCount() - 1);
}

CFxUIRibbonSystemMenuItem* ApplicationMenuSearch::top(const CFxUIGroup& mainGroup)
{
    return matchOrLast(mainGroup.GetApplicationMenu(), CFxString(kApplicationMenuTopId));
}

CFxUIRibbonSystemMenuItem* ApplicationMenuSearch::child(const CFxUIRibbonSystemMenuItem* parent,
                                                        const CFxString& id)
{
    return parent ? IdentifierMatch::firstInAnyCase(parent->GetSubItems(), id) : nullptr;
}
