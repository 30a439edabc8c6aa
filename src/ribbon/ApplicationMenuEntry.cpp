#include "ApplicationMenuEntry.h"

#include "ApplicationMenuSearch.h"

#include <CFxUI.h>

ApplicationMenuEntry::ApplicationMenuEntry(const CFxString& identifier, const CFxString& text,
                                           CommandFactory makeCommand)
    : m_identifier(identifier), m_text(text), m_makeCommand(makeCommand)
{}

void ApplicationMenuEntry::addAfter(CFxUI& ui, CFxUIRibbonSystemMenuItem& menu,
                                    const CFxString& anchorId, WithoutAnchor withoutAnchor) const
{
    CFxUIList<CFxUIRibbonSystemMenuItem>& entries = menu.GetSubItems();
    CFxUIRibbonSystemMenuItem* anchor = ApplicationMenuSearch::matchOrLast(entries, anchorId);
    if (ApplicationMenuSearch::child(&menu, m_identifier))
        return;
    CFxUICommand* command = m_makeCommand(ui);
    CFxUIRibbonSystemMenuItem* separator =
        ui.CreateRibbonSystemMenuItem(CFxString(CFxUIRibbonSystemMenuItem::separatorIdentifier()));
    const bool separated = (anchor || withoutAnchor == WithoutAnchor::PlaceFirst) &&
                           entries.InsertAfter(anchor, separator);
    CFxUIRibbonSystemMenuItem* entry = ui.CreateRibbonSystemMenuItem(m_identifier);
    entry->SetText(m_text);
    entry->AttachCommand(command);
    if (separated)
        entries.InsertAfter(separator, entry);
}
