#include "CFxUI.h"

#include <OdEventLog.h>

#include <vector>

CFxUI::CFxUI() : m_systemMenu(make<CFxUIRibbonSystemMenuItem>(CFxString("ID_RibbonSystemMenu"))) {}

CFxUI::~CFxUI() = default;

CFxUIGroupIterator* CFxUI::NewGroupIterator() const
{
    return new CFxUIGroupIterator(std::vector<CFxUIGroup*>(m_groups.begin(), m_groups.end()));
}

CFxUIWorkspace* CFxUI::FindWorkspace(const CFxString& name) const
{
    return m_workspaces.FindFirst(name);
}

CFxUIMenuItem* CFxUI::CreateMenuItem()
{
    return make<CFxUIMenuItem>();
}

CFxUIMenuEntry* CFxUI::CreateMenuEntry(CFxUIPullDownMenu* menu)
{
    auto* entry = make<CFxUIMenuEntry>();
    if (menu)
        menu->GetEntries().Append(entry);
    return entry;
}

CFxUIRibbonTab* CFxUI::CreateRibbonTab(const CFxString& identifier)
{
    return make<CFxUIRibbonTab>(identifier);
}

CFxUIRibbonPanel* CFxUI::CreateRibbonPanel(const CFxString& identifier)
{
    return make<CFxUIRibbonPanel>(identifier);
}

CFxUIRibbonRow* CFxUI::CreateRibbonRow(const CFxString& identifier)
{
    return make<CFxUIRibbonRow>(identifier);
}

CFxUIRibbonButton* CFxUI::CreateRibbonButton(int kind, const CFxString& identifier)
{
    switch (kind) {
    case CFxUIRibbonButton::kCommand:
    case CFxUIRibbonButton::kSplit:
    case CFxUIRibbonButton::kSeparator:
        return make<CFxUIRibbonButton>(kind, identifier);
    default:
        return nullptr;
    }
}

CFxUIRibbonSystemMenuItem* CFxUI::CreateRibbonSystemMenuItem(const CFxString& identifier)
{
    return make<CFxUIRibbonSystemMenuItem>(identifier);
}

CFxUICommand* CFxUI::CreateCommand(const CFxString& identifier, CFxUIGroup* owner)
{
    auto* command = make<CFxUICommand>(identifier);
    if (owner)
        owner->GetCommands().AppendNew(command);
    return command;
}

CFxUICommand* CFxUI::FindCommand(const CFxString& groupIdentifier,
                                 const CFxString& commandIdentifier) const
{
    const CFxUIGroup* group = m_groups.FindFirst(groupIdentifier);
    return group ? group->GetCommands().FindFirst(commandIdentifier) : nullptr;
}

void CFxUI::DeleteCommand(CFxUICommand* command)
{
    const auto owned = m_objects.find(command);
    if (!command || owned == m_objects.end())
        return;
    for (CFxUIGroup* group : m_madeGroups)
        group->GetCommands().Remove(command);
    // A copy: detaching a holder takes it out of the command's set.
    const std::vector<CFxUIObject*> holders(command->GetHolders().begin(),
                                            command->GetHolders().end());
    for (CFxUIObject* holder : holders) {
        if (auto* button = dynamic_cast<CFxUIRibbonButton*>(holder))
            button->AttachCommand(nullptr);
        else if (auto* item = dynamic_cast<CFxUIRibbonSystemMenuItem*>(holder))
            item->AttachCommand(nullptr);
    }
    m_objects.erase(owned);
}

void CFxUI::Update()
{
    OdEventLog::report(QStringLiteral("ui-updated"));
    if (m_updateHandler)
        m_updateHandler();
}
