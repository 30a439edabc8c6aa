#include "CFxUIJsonWriter.h"

#include "CFxUI.h"

#include <QJsonArray>

#include <vector>

namespace {
QString text(const CFxString& value)
{
    return value.toQString();
}

QJsonObject commandJson(const CFxUICommand& command)
{
    return {{QStringLiteral("id"), text(command.GetIdentifier())},
            {QStringLiteral("name"), text(command.GetName())},
            {QStringLiteral("macro"), text(command.GetMacro())},
            {QStringLiteral("actionId"), text(command.GetActionId())},
            {QStringLiteral("description"), text(command.GetDescription())},
            {QStringLiteral("smallIcon"),
             QJsonArray{text(command.GetSmallIcon(0)), text(command.GetSmallIcon(1))}},
            {QStringLiteral("largeIcon"),
             QJsonArray{text(command.GetLargeIcon(0)), text(command.GetLargeIcon(1))}},
            {QStringLiteral("extendedTooltip"), command.GetExtendedTooltip() != nullptr}};
}

// A command listed in the group is named; any other is written out where it is attached.
QJsonValue attachedCommandJson(const CFxUICommand* command, const CFxUIGroup& group)
{
    if (!command)
        return QJsonValue();
    if (group.GetCommands().Contains(command))
        return text(command->GetIdentifier());
    return commandJson(*command);
}

template <class T>
QJsonArray identifiers(const CFxUIList<T>& list)
{
    QJsonArray result;
    for (const T* item : list)
        result.append(text(item->GetIdentifier()));
    return result;
}

const char* buttonKind(int kind)
{
    switch (kind) {
    case CFxUIRibbonButton::kSplit:
        return "split";
    case CFxUIRibbonButton::kSeparator:
        return "separator";
    default:
        return "command";
    }
}

QJsonObject buttonFields(const CFxUIRibbonButton& button, const CFxUIGroup& group,
                         const QJsonArray& subButtons)
{
    return {{QStringLiteral("kind"), QLatin1String(buttonKind(button.GetKind()))},
            {QStringLiteral("id"), text(button.GetIdentifier())},
            {QStringLiteral("text"), text(button.GetText())},
            {QStringLiteral("command"), attachedCommandJson(button.GetCommand(), group)},
            {QStringLiteral("displayStyle"), button.GetDisplayStyle()},
            {QStringLiteral("splitStyle"), button.GetSplitStyle()},
            {QStringLiteral("splitBehavior"), button.GetSplitBehavior()},
            {QStringLiteral("buttons"), subButtons}};
}

// Split buttons nest as deep as modules make them (thousands of levels): the button tree is
// written with a stack of its own, each button after all its sub-buttons.
QJsonObject buttonJson(const CFxUIRibbonButton& root, const CFxUIGroup& group)
{
    struct Pending
    {
        const CFxUIRibbonButton* button;
        int next;
        QJsonArray subButtons;
    };
    std::vector<Pending> pending{{&root, 0, {}}};
    QJsonObject written;
    while (!pending.empty()) {
        Pending& top = pending.back();
        if (const CFxUIRibbonButton* sub = top.button->GetSubButtons().GetAt(top.next)) {
            ++top.next;
            pending.push_back({sub, 0, {}});
            continue;
        }
        written = buttonFields(*top.button, group, top.subButtons);
        pending.pop_back();
        if (!pending.empty())
            pending.back().subButtons.append(written);
    }
    return written;
}

QJsonObject rowJson(const CFxUIRibbonRow& row, const CFxUIGroup& group)
{
    QJsonArray buttons;
    for (const CFxUIRibbonButton* button : row.GetButtons())
        buttons.append(buttonJson(*button, group));
    return {{QStringLiteral("id"), text(row.GetIdentifier())},
            {QStringLiteral("buttons"), buttons}};
}

QJsonObject panelJson(const CFxUIRibbonPanel& panel, const CFxUIGroup& group)
{
    QJsonArray rows;
    for (const CFxUIRibbonRow* row : panel.GetRows())
        rows.append(rowJson(*row, group));
    return {{QStringLiteral("id"), text(panel.GetIdentifier())},
            {QStringLiteral("caption"), text(panel.GetCaption())},
            {QStringLiteral("collapsedCaption"), text(panel.GetCollapsedCaption())},
            {QStringLiteral("launcher"), panel.GetLauncher()},
            {QStringLiteral("rows"), rows}};
}

QJsonObject tabJson(const CFxUIRibbonTab& tab, const CFxUIGroup& group)
{
    QJsonArray panels;
    for (const CFxUIRibbonPanel* panel : tab.GetPanels())
        panels.append(panelJson(*panel, group));
    return {{QStringLiteral("id"), text(tab.GetIdentifier())},
            {QStringLiteral("caption"), text(tab.GetCaption())},
            {QStringLiteral("listCaption"), text(tab.GetListCaption())},
            {QStringLiteral("panels"), panels}};
}

QJsonObject systemMenuItemJson(const CFxUIRibbonSystemMenuItem& item, const CFxUIGroup* group)
{
    QJsonArray subItems;
    for (const CFxUIRibbonSystemMenuItem* sub : item.GetSubItems())
        subItems.append(systemMenuItemJson(*sub, group));
    const CFxUICommand* command = item.GetCommand();
    return {{QStringLiteral("id"), text(item.GetIdentifier())},
            {QStringLiteral("text"), text(item.GetText())},
            {QStringLiteral("separator"), item.IsSeparator()},
            {QStringLiteral("command"),
             group ? attachedCommandJson(command, *group)
                   : (command ? QJsonValue(commandJson(*command)) : QJsonValue())},
            {QStringLiteral("items"), subItems}};
}

QJsonObject entryJson(const CFxUIMenuEntry& entry)
{
    const CFxUIMenuItem* item = entry.GetItem();
    QJsonObject result{{QStringLiteral("id"), text(entry.GetIdentifier())},
                       {QStringLiteral("text"), text(entry.GetText())}};
    if (item) {
        result.insert(QStringLiteral("statusText"), text(item->GetStatusText()));
        result.insert(QStringLiteral("macro"), text(item->GetMacro()));
        if (item->GetMenuText() != entry.GetText())
            result.insert(QStringLiteral("itemText"), text(item->GetMenuText()));
    }
    return result;
}

QJsonObject menuJson(const CFxUIPullDownMenu& menu)
{
    QJsonArray entries;
    for (const CFxUIMenuEntry* entry : menu.GetEntries())
        entries.append(entryJson(*entry));
    return {{QStringLiteral("id"), text(menu.GetIdentifier())},
            {QStringLiteral("text"), text(menu.GetText())},
            {QStringLiteral("entries"), entries}};
}

QJsonObject groupJson(const CFxUIGroup& group, const CFxUI& ui)
{
    QJsonArray menus, tabs, commands, applicationMenu;
    for (const CFxUIPullDownMenu* menu : group.GetPullDownMenus())
        menus.append(menuJson(*menu));
    for (const CFxUIRibbonTab* tab : group.GetRibbonTabs())
        tabs.append(tabJson(*tab, group));
    for (const CFxUICommand* command : group.GetCommands())
        commands.append(commandJson(*command));
    for (const CFxUIRibbonSystemMenuItem* item : group.GetApplicationMenu())
        applicationMenu.append(systemMenuItemJson(*item, &group));
    return {{QStringLiteral("id"), text(group.GetIdentifier())},
            {QStringLiteral("main"), group.IsMainGroup()},
            {QStringLiteral("reference"), ui.GetReferenceMenuGroup() == &group},
            {QStringLiteral("editable"), group.IsEditable()},
            {QStringLiteral("menus"), menus},
            {QStringLiteral("items"), identifiers(group.GetMenuItems())},
            {QStringLiteral("tabs"), tabs},
            {QStringLiteral("panels"), identifiers(group.GetRibbonPanels())},
            {QStringLiteral("commands"), commands},
            {QStringLiteral("applicationMenu"), applicationMenu}};
}
} // namespace

QJsonObject CFxUIJsonWriter::write(const CFxUI& ui)
{
    QJsonArray groups, workspaces, systemMenu;
    for (const CFxUIGroup* group : ui.GetMenuGroups())
        groups.append(groupJson(*group, ui));
    for (const CFxUIWorkspace* workspace : ui.GetWorkspaces())
        workspaces.append(
            QJsonObject{{QStringLiteral("name"), text(workspace->GetIdentifier())},
                        {QStringLiteral("tabs"), identifiers(workspace->GetRibbonTabs())}});
    for (const CFxUIRibbonSystemMenuItem* item : ui.GetRibbonSystemMenu()->GetSubItems())
        systemMenu.append(systemMenuItemJson(*item, nullptr));
    return {{QStringLiteral("groups"), groups},
            {QStringLiteral("workspaces"), workspaces},
            {QStringLiteral("ribbonSystemMenu"), systemMenu}};
}
