#include "CFxUIJsonWriter.h"

#include "CFxHostUI.h"
#include "CFxJsonTextWriter.h"

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

QJsonObject groupJson(const CFxUIGroup& group, const CFxHostUI& ui)
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

QJsonObject CFxUIJsonWriter::write(const CFxHostUI& ui)
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

// The text: keys in each object in QJsonObject's (sorted) order.
namespace {
void writeIcons(CFxJsonTextWriter& out, const CFxString& first, const CFxString& second)
{
    out.beginArray();
    out.value(text(first));
    out.value(text(second));
    out.endArray();
}

void writeCommand(CFxJsonTextWriter& out, const CFxUICommand& command)
{
    out.beginObject();
    out.key("actionId");
    out.value(text(command.GetActionId()));
    out.key("description");
    out.value(text(command.GetDescription()));
    out.key("extendedTooltip");
    out.value(command.GetExtendedTooltip() != nullptr);
    out.key("id");
    out.value(text(command.GetIdentifier()));
    out.key("largeIcon");
    writeIcons(out, command.GetLargeIcon(0), command.GetLargeIcon(1));
    out.key("macro");
    out.value(text(command.GetMacro()));
    out.key("name");
    out.value(text(command.GetName()));
    out.key("smallIcon");
    writeIcons(out, command.GetSmallIcon(0), command.GetSmallIcon(1));
    out.endObject();
}

void writeAttachedCommand(CFxJsonTextWriter& out, const CFxUICommand* command,
                          const CFxUIGroup* group)
{
    if (!command)
        out.null();
    else if (group && group->GetCommands().Contains(command))
        out.value(text(command->GetIdentifier()));
    else
        writeCommand(out, *command);
}

template <class T>
void writeIdentifiers(CFxJsonTextWriter& out, const CFxUIList<T>& list)
{
    out.beginArray();
    for (const T* item : list)
        out.value(text(item->GetIdentifier()));
    out.endArray();
}

// "buttons" comes first among a button's keys: a button is opened, its sub-buttons written
// (with a stack of its own), and then its other fields.
void writeButtonTree(CFxJsonTextWriter& out, const CFxUIRibbonButton& root, const CFxUIGroup& group)
{
    struct Open
    {
        const CFxUIRibbonButton* button;
        int next;
    };
    const auto open = [&out](const CFxUIRibbonButton* button) {
        out.beginObject();
        out.key("buttons");
        out.beginArray();
        return Open{button, 0};
    };
    std::vector<Open> stack{open(&root)};
    while (!stack.empty()) {
        Open& top = stack.back();
        if (const CFxUIRibbonButton* sub = top.button->GetSubButtons().GetAt(top.next)) {
            ++top.next;
            stack.push_back(open(sub));
            continue;
        }
        const CFxUIRibbonButton& button = *top.button;
        stack.pop_back();
        out.endArray();
        out.key("command");
        writeAttachedCommand(out, button.GetCommand(), &group);
        out.key("displayStyle");
        out.value(button.GetDisplayStyle());
        out.key("id");
        out.value(text(button.GetIdentifier()));
        out.key("kind");
        out.value(QString::fromLatin1(buttonKind(button.GetKind())));
        out.key("splitBehavior");
        out.value(button.GetSplitBehavior());
        out.key("splitStyle");
        out.value(button.GetSplitStyle());
        out.key("text");
        out.value(text(button.GetText()));
        out.endObject();
    }
}

// Sub-items come between an item's "id" and "separator": the same walk as for buttons.
void writeSystemMenuItems(CFxJsonTextWriter& out, const CFxUIList<CFxUIRibbonSystemMenuItem>& items,
                          const CFxUIGroup* group)
{
    struct Open
    {
        const CFxUIList<CFxUIRibbonSystemMenuItem>* items;
        const CFxUIRibbonSystemMenuItem* item; // null for the outermost list
        int next;
    };
    out.beginArray();
    std::vector<Open> stack{{&items, nullptr, 0}};
    while (!stack.empty()) {
        Open& top = stack.back();
        if (const CFxUIRibbonSystemMenuItem* sub = top.items->GetAt(top.next)) {
            ++top.next;
            out.beginObject();
            out.key("command");
            writeAttachedCommand(out, sub->GetCommand(), group);
            out.key("id");
            out.value(text(sub->GetIdentifier()));
            out.key("items");
            out.beginArray();
            stack.push_back({&sub->GetSubItems(), sub, 0});
            continue;
        }
        const CFxUIRibbonSystemMenuItem* item = top.item;
        stack.pop_back();
        out.endArray();
        if (!item)
            break;
        out.key("separator");
        out.value(item->IsSeparator());
        out.key("text");
        out.value(text(item->GetText()));
        out.endObject();
    }
}

void writeTab(CFxJsonTextWriter& out, const CFxUIRibbonTab& tab, const CFxUIGroup& group)
{
    out.beginObject();
    out.key("caption");
    out.value(text(tab.GetCaption()));
    out.key("id");
    out.value(text(tab.GetIdentifier()));
    out.key("listCaption");
    out.value(text(tab.GetListCaption()));
    out.key("panels");
    out.beginArray();
    for (const CFxUIRibbonPanel* panel : tab.GetPanels()) {
        out.beginObject();
        out.key("caption");
        out.value(text(panel->GetCaption()));
        out.key("collapsedCaption");
        out.value(text(panel->GetCollapsedCaption()));
        out.key("id");
        out.value(text(panel->GetIdentifier()));
        out.key("launcher");
        out.value(panel->GetLauncher());
        out.key("rows");
        out.beginArray();
        for (const CFxUIRibbonRow* row : panel->GetRows()) {
            out.beginObject();
            out.key("buttons");
            out.beginArray();
            for (const CFxUIRibbonButton* button : row->GetButtons())
                writeButtonTree(out, *button, group);
            out.endArray();
            out.key("id");
            out.value(text(row->GetIdentifier()));
            out.endObject();
        }
        out.endArray();
        out.endObject();
    }
    out.endArray();
    out.endObject();
}

void writeMenu(CFxJsonTextWriter& out, const CFxUIPullDownMenu& menu)
{
    out.beginObject();
    out.key("entries");
    out.beginArray();
    for (const CFxUIMenuEntry* entry : menu.GetEntries()) {
        const CFxUIMenuItem* item = entry->GetItem();
        out.beginObject();
        out.key("id");
        out.value(text(entry->GetIdentifier()));
        if (item && item->GetMenuText() != entry->GetText()) {
            out.key("itemText");
            out.value(text(item->GetMenuText()));
        }
        if (item) {
            out.key("macro");
            out.value(text(item->GetMacro()));
            out.key("statusText");
            out.value(text(item->GetStatusText()));
        }
        out.key("text");
        out.value(text(entry->GetText()));
        out.endObject();
    }
    out.endArray();
    out.key("id");
    out.value(text(menu.GetIdentifier()));
    out.key("text");
    out.value(text(menu.GetText()));
    out.endObject();
}

void writeGroup(CFxJsonTextWriter& out, const CFxUIGroup& group, const CFxHostUI& ui)
{
    out.beginObject();
    out.key("applicationMenu");
    writeSystemMenuItems(out, group.GetApplicationMenu(), &group);
    out.key("commands");
    out.beginArray();
    for (const CFxUICommand* command : group.GetCommands())
        writeCommand(out, *command);
    out.endArray();
    out.key("editable");
    out.value(group.IsEditable());
    out.key("id");
    out.value(text(group.GetIdentifier()));
    out.key("items");
    writeIdentifiers(out, group.GetMenuItems());
    out.key("main");
    out.value(group.IsMainGroup());
    out.key("menus");
    out.beginArray();
    for (const CFxUIPullDownMenu* menu : group.GetPullDownMenus())
        writeMenu(out, *menu);
    out.endArray();
    out.key("panels");
    writeIdentifiers(out, group.GetRibbonPanels());
    out.key("reference");
    out.value(ui.GetReferenceMenuGroup() == &group);
    out.key("tabs");
    out.beginArray();
    for (const CFxUIRibbonTab* tab : group.GetRibbonTabs())
        writeTab(out, *tab, group);
    out.endArray();
    out.endObject();
}
} // namespace

QByteArray CFxUIJsonWriter::writeText(const CFxHostUI& ui, bool compact)
{
    CFxJsonTextWriter out(compact);
    out.beginObject();
    out.key("groups");
    out.beginArray();
    for (const CFxUIGroup* group : ui.GetMenuGroups())
        writeGroup(out, *group, ui);
    out.endArray();
    out.key("ribbonSystemMenu");
    writeSystemMenuItems(out, ui.GetRibbonSystemMenu()->GetSubItems(), nullptr);
    out.key("workspaces");
    out.beginArray();
    for (const CFxUIWorkspace* workspace : ui.GetWorkspaces()) {
        out.beginObject();
        out.key("name");
        out.value(text(workspace->GetIdentifier()));
        out.key("tabs");
        writeIdentifiers(out, workspace->GetRibbonTabs());
        out.endObject();
    }
    out.endArray();
    out.endObject();
    return out.take();
}
