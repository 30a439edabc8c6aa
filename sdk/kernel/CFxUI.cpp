#include "CFxUI.h"

#include <OdEventLog.h>

#include <algorithm>

namespace {
template <class T>
T* findByIdentifier(const CFxUIList<T>& list, const CFxString& identifier)
{
    for (T* item : list) {
        if (item->GetIdentifier().equalNoCase(identifier))
            return item;
    }
    return nullptr;
}
} // namespace

CFxUI::CFxUI() : m_systemMenu(make<CFxUIRibbonSystemMenuItem>(CFxString("ID_RibbonSystemMenu"))) {}

CFxUI::~CFxUI() = default;

template <class T, class... Args>
T* CFxUI::make(Args&&... args)
{
    auto object = std::make_unique<T>(std::forward<Args>(args)...);
    T* raw = object.get();
    m_objects.push_back(std::move(object));
    return raw;
}

CFxUIGroupIterator* CFxUI::NewGroupIterator() const
{
    return new CFxUIGroupIterator(std::vector<CFxUIGroup*>(m_groups.begin(), m_groups.end()));
}

CFxUIWorkspace* CFxUI::FindWorkspace(const CFxString& name) const
{
    return findByIdentifier(m_workspaces, name);
}

CFxUIGroup* CFxUI::CreateMenuGroup(const CFxString& identifier)
{
    return make<CFxUIGroup>(identifier);
}

CFxUIPullDownMenu* CFxUI::CreatePullDownMenu(const CFxString& identifier)
{
    return make<CFxUIPullDownMenu>(identifier);
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

CFxUIWorkspace* CFxUI::CreateWorkspace(const CFxString& name)
{
    return make<CFxUIWorkspace>(name);
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
    const CFxUIGroup* group = findByIdentifier(m_groups, groupIdentifier);
    return group ? findByIdentifier(group->GetCommands(), commandIdentifier) : nullptr;
}

void CFxUI::DeleteCommand(CFxUICommand* command)
{
    const auto owned =
        std::find_if(m_objects.begin(), m_objects.end(),
                     [command](const auto& object) { return object.get() == command; });
    if (!command || owned == m_objects.end())
        return;
    for (const auto& object : m_objects) {
        if (auto* group = dynamic_cast<CFxUIGroup*>(object.get()))
            group->GetCommands().Remove(command);
        else if (auto* button = dynamic_cast<CFxUIRibbonButton*>(object.get());
                 button && button->GetCommand() == command)
            button->AttachCommand(nullptr);
        else if (auto* item = dynamic_cast<CFxUIRibbonSystemMenuItem*>(object.get());
                 item && item->GetCommand() == command)
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

void CFxUI::SetUpdateHandler(std::function<void()> handler)
{
    m_updateHandler = std::move(handler);
}
