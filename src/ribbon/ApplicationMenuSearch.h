#pragma once

#include <CFxUIList.h>

class CFxString;
class CFxUIGroup;
class CFxUIRibbonSystemMenuItem;

// Looks up entries of the ribbon's application menu, where the host's own entries ("RSM",
// "RSMI_10", ...) are found by identifier in any letter case, one level at a time.
class ApplicationMenuSearch
{
public:
    // The first of `entries` whose identifier is `id`. When none is, the last entry looked at
    // stands in for it, so that what goes after a missing anchor still goes in, at the end;
    // null only for an empty list.
    static CFxUIRibbonSystemMenuItem*
    matchOrLast(const CFxUIList<CFxUIRibbonSystemMenuItem>& entries, const CFxString& id);
    // The application menu's top entry of the main group, as matchOrLast finds it.
    static CFxUIRibbonSystemMenuItem* top(const CFxUIGroup& mainGroup);
    // The first direct sub-entry of `parent` whose identifier is `id`; null when there is none
    // or `parent` is null.
    static CFxUIRibbonSystemMenuItem* child(const CFxUIRibbonSystemMenuItem* parent,
                                            const CFxString& id);
};
