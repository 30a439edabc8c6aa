#include "CFxHostUI.h"

#include <utility>

CFxHostUI::CFxHostUI() = default;

CFxHostUI::~CFxHostUI() = default;

CFxUIGroup* CFxHostUI::CreateMenuGroup(const CFxString& identifier)
{
    CFxUIGroup* group = make<CFxUIGroup>(identifier);
    m_madeGroups.push_back(group);
    return group;
}

CFxUIPullDownMenu* CFxHostUI::CreatePullDownMenu(const CFxString& identifier)
{
    return make<CFxUIPullDownMenu>(identifier);
}

CFxUIWorkspace* CFxHostUI::CreateWorkspace(const CFxString& name)
{
    return make<CFxUIWorkspace>(name);
}

void CFxHostUI::SetMainGroup(CFxUIGroup& group, bool main)
{
    group.m_main = main;
}

void CFxHostUI::SetEditable(CFxUIGroup& group, bool editable)
{
    group.m_editable = editable;
}

void CFxHostUI::SetUpdateHandler(std::function<void()> handler)
{
    m_updateHandler = std::move(handler);
}
