#pragma once

#include <QString>

#include <CFxString.h>
#include <CFxUIList.h>

// How the module finds things in the host's user interface: the one home of both rules.
//
// The rule is any letter case, as the host's own look-ups and its profiles have it: a tab, a
// panel, a row, a button, a command, an application-menu entry or a Help item of the module
// is the same whether a sibling, a profile or the module writes it "ID_GCODE_ITEM" or
// "id_gcode_item". A look-up that is not named below goes through `inAnyCase`,
// `firstInAnyCase` or `forEachInAnyCase`.
//
// A few places are matched exactly, each named below with its reason: the host's Help menu,
// its online-support item, the "About" entry of the ribbon's system menu, the data-management
// split button, and the texts by which the module takes its Help entries out. There a
// look-alike in another letter case is not the place, and the module leaves it alone.
// Nothing else in the module compares identifiers by itself (tests/build/check-lookups.py).
class IdentifierMatch
{
public:
    // The same identifier in any letter case.
    static bool inAnyCase(const CFxString& identifier, const CFxString& wanted);
    static bool inAnyCase(const QString& identifier, const QString& wanted);
    // What a table of identifiers in any letter case is keyed by.
    static QString anyCaseKey(const QString& identifier);

    // The first object of `list` whose identifier is `identifier` in any letter case; null when
    // there is none. The host's lists hold no null entries.
    template <class T>
    static T* firstInAnyCase(const CFxUIList<T>& list, const CFxString& identifier)
    {
        return list.FindFirst(identifier);
    }

    // Calls `action` with every object of `list`, in order, whose identifier is `identifier` in
    // any letter case. `action` may change the objects but not `list` itself.
    template <class T, class Action>
    static void forEachInAnyCase(const CFxUIList<T>& list, const CFxString& identifier,
                                 Action action)
    {
        for (int index = 0; index < list.GetCount(); ++index) {
            if (inAnyCase(list.GetAt(index)->GetIdentifier(), identifier))
                action(*list.GetAt(index));
        }
    }

    // The host's Help menu, "ID_MnHelp", the one pull-down menu the module adds to. A menu of
    // another spelling may be anyone's, so a host without this exact one gets no Help entries.
    static bool isHelpMenu(const CFxString& identifier);
    // The Help menu's online-support item, "PMI_330", which the module's Help entries follow;
    // without it they stay at the end of the menu.
    static bool isOnlineSupportItem(const CFxString& identifier);
    // The "About" entry of the ribbon's system menu, "RSYS_ABOUT", before which the module's
    // block goes; without it the block is dropped.
    static bool isSystemMenuAbout(const CFxString& identifier);
    // The data-management sibling's split button, "ID_VAULTLINE_ITEM": the visibility switch
    // rewrites the texts of its entries, and of no button that only resembles it.
    static bool isDataManagementButton(const CFxString& identifier);
    // A Help item's text against the text the module gave its entry: the entries go by their
    // text, and an item whose text differs in letter case is not one of them.
    static bool isEntryText(const CFxString& text, const CFxString& entryText);

private:
    static bool exactly(const CFxString& identifier, const CFxString& wanted);
};
