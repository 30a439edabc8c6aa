#pragma once

#include "common/IdentifierMatch.h"
#include "common/OnePassRemoval.h"

#include <CFxString.h>

class CFxUIGroup;
class CFxUIMenuEntry;
class CFxUIPullDownMenu;

// Small operations over the host's live menu model, reached through the host's system
// services. None keeps state; each does nothing (or answers null or false) when what it needs
// is missing: no user-interface object, no menu, no anchor.
class HostMenuHelpers
{
public:
    // The Help pull-down menu of the first group, other than the reference group, that has
    // one, when `identifier` is the Help menu's; null for any other identifier. No other
    // pull-down menu is ever looked for, so asking for one finds nothing rather than a menu the
    // module has no business in; the reference group's read-only copy is never handed out.
    static CFxUIPullDownMenu* findHelpMenu(const CFxString& identifier);

    // Whether that menu has an item whose identifier equals `itemIdentifier` in any case.
    static bool containsItem(const CFxString& menuIdentifier, const CFxString& itemIdentifier);

    // Adds a menu item and the entry that shows it at the end of the Help menu, and lists the
    // item in `group` when one is given. Returns the new entry; null when the Help menu already
    // has an item of that identifier (so repeating it adds nothing) or there is no Help menu.
    static CFxUIMenuEntry* addPullDownItem(const CFxString& menuText, const CFxString& identifier,
                                           const CFxString& macro, const CFxString& statusText,
                                           CFxUIGroup* group);

    // The first group that takes menu items added at run time, or else the reference group.
    static CFxUIGroup* findItemGroup();

    // Puts an entry (a separator, or the text with a command running `macro`) into the
    // ribbon's system menu just before its "About" entry; without that entry the new one is
    // dropped.
    static void insertRibbonSystemMenuItem(const CFxString& menuText, const CFxString& macro,
                                           bool separator);

    // Removes the items of `container` whose text is exactly `text`, in one pass by index: of
    // two neighbours with that text only the first goes (docs/lifecycle.md, row "One pass").
    template <class Container>
    static void removeItemsByText(Container& container, const CFxString& text)
    {
        removeInOnePass(
            container,
            [&text](const auto& item) {
                return IdentifierMatch::isEntryText(item.GetText(), text);
            },
            [](auto* item) { return item; });
    }
};
