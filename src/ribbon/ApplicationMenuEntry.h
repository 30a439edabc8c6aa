#pragma once

#include <CFxString.h>

class CFxUI;
class CFxUICommand;
class CFxUIRibbonSystemMenuItem;

// An entry that the module puts into the ribbon's application menu: a separator, then the
// entry running its command, right after an anchor among one menu's sub-entries. The export
// table and the publish entry are both put in place this way.
class ApplicationMenuEntry
{
public:
    // Makes the command the entry runs (ApplicationMenuCommand::create with the entry's values).
    using CommandFactory = CFxUICommand* (*)(CFxUI& ui);

    // Where the pair goes when `menu` has no sub-entries at all, so there is no anchor.
    enum class WithoutAnchor
    {
        PlaceFirst,  // the pair becomes the menu's only sub-entries
        PlaceNowhere // separator, entry and command are made but stand in no menu
    };

    ApplicationMenuEntry(const CFxString& identifier, const CFxString& text,
                         CommandFactory makeCommand);

    // Puts a separator and the entry after the first sub-entry `anchorId` of `menu` (in any
    // letter case), or after its last sub-entry when there is none of that identifier. Nothing
    // when `menu` holds the entry already, so repeating it adds nothing.
    void addAfter(CFxUI& ui, CFxUIRibbonSystemMenuItem& menu, const CFxString& anchorId,
                  WithoutAnchor withoutAnchor) const;

private:
    CFxString m_identifier;
    CFxString m_text;
    CommandFactory m_makeCommand;
};
