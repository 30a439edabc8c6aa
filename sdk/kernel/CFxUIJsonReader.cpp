#include "CFxUIJsonReader.h"

#include "CFxHostUI.h"
#include "CFxTextFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <OdError.h>

namespace {
// `path` is a JSON pointer to the offending part ("/groups/1/tabs/0").
[[noreturn]] void fail(const QString& path, const QString& problem)
{
    const QString where = path.isEmpty() ? QStringLiteral("/") : path;
    throw OdError(toOdString(where + QStringLiteral(": ") + problem));
}

void checkKeys(const QJsonObject& json, const QString& path, const QStringList& allowed)
{
    for (auto it = json.begin(); it != json.end(); ++it) {
        if (!allowed.contains(it.key()))
            fail(path, QStringLiteral("unknown field '%1' (expected one of: %2)")
                           .arg(it.key(), allowed.join(QStringLiteral(", "))));
    }
}

QString string(const QJsonObject& json, const QString& key, const QString& path,
               bool required = false)
{
    const QJsonValue value = json.value(key);
    if (value.isUndefined() && !required)
        return QString();
    if (!value.isString())
        fail(path, QStringLiteral("'%1' must be a string").arg(key));
    return value.toString();
}

bool boolean(const QJsonObject& json, const QString& key, const QString& path)
{
    const QJsonValue value = json.value(key);
    if (value.isUndefined())
        return false;
    if (!value.isBool())
        fail(path, QStringLiteral("'%1' must be true or false").arg(key));
    return value.toBool();
}

int integer(const QJsonObject& json, const QString& key, const QString& path)
{
    const QJsonValue value = json.value(key);
    if (value.isUndefined())
        return 0;
    if (!value.isDouble() || value.toDouble() != static_cast<int>(value.toDouble()))
        fail(path, QStringLiteral("'%1' must be a whole number").arg(key));
    return value.toInt();
}

QJsonArray array(const QJsonObject& json, const QString& key, const QString& path)
{
    const QJsonValue value = json.value(key);
    if (value.isUndefined())
        return QJsonArray();
    if (!value.isArray())
        fail(path, QStringLiteral("'%1' must be a list").arg(key));
    return value.toArray();
}

// A command's icons of one size: a path and a second path, at most.
QJsonArray icons(const QJsonObject& json, const QString& key, const QString& path)
{
    const QJsonArray list = array(json, key, path);
    if (list.size() > 2)
        fail(path, QStringLiteral("'%1' holds %2 icons; a command has two of each size at most")
                       .arg(key)
                       .arg(list.size()));
    return list;
}

// Calls `read` with each element of the list `key`, which must be objects.
template <class Read>
void forEachObject(const QJsonObject& json, const QString& key, const QString& path, Read read)
{
    const QJsonArray list = array(json, key, path);
    for (int i = 0; i < list.size(); ++i) {
        const QString elementPath = QStringLiteral("%1/%2/%3").arg(path, key).arg(i);
        if (!list[i].isObject())
            fail(elementPath, QStringLiteral("must be an object"));
        read(list[i].toObject(), elementPath);
    }
}

int buttonKind(const QString& kind, const QString& path)
{
    if (kind == QLatin1String("command") || kind.isEmpty())
        return CFxUIRibbonButton::kCommand;
    if (kind == QLatin1String("split"))
        return CFxUIRibbonButton::kSplit;
    if (kind == QLatin1String("separator"))
        return CFxUIRibbonButton::kSeparator;
    fail(path, QStringLiteral("'kind' must be command, split or separator, not '%1'").arg(kind));
}
} // namespace

CFxUIJsonReader::CFxUIJsonReader(CFxHostUI& ui) : m_ui(ui) {}

void CFxUIJsonReader::read(const QJsonObject& profile, CFxHostUI& ui)
{
    const QString path;
    checkKeys(profile, path,
              {QStringLiteral("groups"), QStringLiteral("workspaces"),
               QStringLiteral("ribbonSystemMenu")});
    CFxUIJsonReader reader(ui);
    forEachObject(profile, QStringLiteral("groups"), path,
                  [&](const QJsonObject& json, const QString& at) { reader.readGroup(json, at); });
    forEachObject(
        profile, QStringLiteral("workspaces"), path,
        [&](const QJsonObject& json, const QString& at) { reader.readWorkspace(json, at); });
    forEachObject(profile, QStringLiteral("ribbonSystemMenu"), path,
                  [&](const QJsonObject& json, const QString& at) {
                      ui.GetRibbonSystemMenu()->GetSubItems().Append(
                          reader.readSystemMenuItem(json, at, nullptr));
                  });
}

void CFxUIJsonReader::readFile(const QString& path, CFxHostUI& ui)
{
    QByteArray content;
    QString problem;
    if (!CFxTextFile::read(path, content, problem))
        fail(path, QStringLiteral("cannot be read: %1").arg(problem));
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        fail(path, QStringLiteral("not valid JSON at offset %1: %2")
                       .arg(error.offset)
                       .arg(error.errorString()));
    if (!document.isObject())
        fail(path, QStringLiteral("must hold one JSON object"));
    try {
        read(document.object(), ui);
    } catch (const OdError& error) {
        fail(path, toQString(error.description()));
    }
}

void CFxUIJsonReader::readGroup(const QJsonObject& json, const QString& path)
{
    checkKeys(json, path,
              {QStringLiteral("id"), QStringLiteral("main"), QStringLiteral("reference"),
               QStringLiteral("editable"), QStringLiteral("menus"), QStringLiteral("items"),
               QStringLiteral("tabs"), QStringLiteral("panels"), QStringLiteral("commands"),
               QStringLiteral("applicationMenu")});
    const QString id = string(json, QStringLiteral("id"), path, true);
    claim(m_groupPaths, id, path, "group");
    CFxUIGroup* group = m_ui.CreateMenuGroup(id);
    CFxHostUI::SetMainGroup(*group, boolean(json, QStringLiteral("main"), path));
    if (group->IsMainGroup()) {
        if (!m_mainGroupPath.isEmpty())
            fail(path,
                 QStringLiteral("a second main group (the first is %1)").arg(m_mainGroupPath));
        m_mainGroupPath = path;
    }
    CFxHostUI::SetEditable(*group, boolean(json, QStringLiteral("editable"), path));
    if (boolean(json, QStringLiteral("reference"), path)) {
        if (m_ui.GetReferenceMenuGroup())
            fail(path, QStringLiteral("only one group can be the reference group"));
        m_ui.SetReferenceMenuGroup(group);
    }
    m_ui.GetMenuGroups().Append(group);
    forEachObject(
        json, QStringLiteral("commands"), path,
        [&](const QJsonObject& command, const QString& at) { readCommand(command, at, group); });
    forEachObject(json, QStringLiteral("menus"), path,
                  [&](const QJsonObject& menu, const QString& at) { readMenu(menu, at, *group); });
    forEachObject(json, QStringLiteral("tabs"), path,
                  [&](const QJsonObject& tab, const QString& at) {
                      group->GetRibbonTabs().AppendNew(readTab(tab, at, *group));
                  });
    forEachObject(json, QStringLiteral("applicationMenu"), path,
                  [&](const QJsonObject& item, const QString& at) {
                      group->GetApplicationMenu().Append(readSystemMenuItem(item, at, group));
                  });
}

void CFxUIJsonReader::readMenu(const QJsonObject& json, const QString& path, CFxUIGroup& group)
{
    checkKeys(json, path,
              {QStringLiteral("id"), QStringLiteral("text"), QStringLiteral("entries")});
    const QString id = string(json, QStringLiteral("id"), path, true);
    claim(m_menuPaths[key(group.GetIdentifier().toQString())], id, path, "menu in the group");
    CFxUIPullDownMenu* menu = m_ui.CreatePullDownMenu(id);
    menu->SetText(string(json, QStringLiteral("text"), path));
    group.GetPullDownMenus().Append(menu);
    forEachObject(json, QStringLiteral("entries"), path,
                  [&](const QJsonObject& entryJson, const QString& at) {
                      checkKeys(entryJson, at,
                                {QStringLiteral("id"), QStringLiteral("text"),
                                 QStringLiteral("statusText"), QStringLiteral("macro"),
                                 QStringLiteral("itemText")});
                      const QString text = string(entryJson, QStringLiteral("text"), at);
                      const QString itemText = string(entryJson, QStringLiteral("itemText"), at);
                      CFxUIMenuItem* item = m_ui.CreateMenuItem();
                      item->SetIdentifier(string(entryJson, QStringLiteral("id"), at));
                      item->SetMenuText(itemText.isEmpty() ? text : itemText);
                      item->SetStatusText(string(entryJson, QStringLiteral("statusText"), at));
                      item->SetMacro(string(entryJson, QStringLiteral("macro"), at));
                      group.GetMenuItems().Append(item);
                      CFxUIMenuEntry* entry = m_ui.CreateMenuEntry(menu);
                      entry->SetText(text);
                      entry->BindItem(item);
                  });
}

CFxUIRibbonTab* CFxUIJsonReader::readTab(const QJsonObject& json, const QString& path,
                                         CFxUIGroup& group)
{
    checkKeys(json, path,
              {QStringLiteral("id"), QStringLiteral("caption"), QStringLiteral("listCaption"),
               QStringLiteral("panels")});
    const QString id = string(json, QStringLiteral("id"), path, true);
    claim(m_tabPaths, id, path, "tab");
    CFxUIRibbonTab* tab = m_ui.CreateRibbonTab(id);
    m_tabs.insert(key(id), tab);
    tab->SetCaption(string(json, QStringLiteral("caption"), path));
    tab->SetListCaption(string(json, QStringLiteral("listCaption"), path));
    forEachObject(
        json, QStringLiteral("panels"), path, [&](const QJsonObject& panelJson, const QString& at) {
            checkKeys(panelJson, at,
                      {QStringLiteral("id"), QStringLiteral("caption"),
                       QStringLiteral("collapsedCaption"), QStringLiteral("launcher"),
                       QStringLiteral("rows")});
            CFxUIRibbonPanel* panel =
                m_ui.CreateRibbonPanel(string(panelJson, QStringLiteral("id"), at, true));
            panel->SetCaption(string(panelJson, QStringLiteral("caption"), at));
            panel->SetCollapsedCaption(string(panelJson, QStringLiteral("collapsedCaption"), at));
            panel->SetLauncher(integer(panelJson, QStringLiteral("launcher"), at));
            tab->GetPanels().AppendNew(panel);
            group.GetRibbonPanels().AppendNew(panel);
            forEachObject(
                panelJson, QStringLiteral("rows"), at,
                [&](const QJsonObject& rowJson, const QString& rowAt) {
                    checkKeys(rowJson, rowAt, {QStringLiteral("id"), QStringLiteral("buttons")});
                    CFxUIRibbonRow* row =
                        m_ui.CreateRibbonRow(string(rowJson, QStringLiteral("id"), rowAt, true));
                    panel->GetRows().Append(row);
                    forEachObject(rowJson, QStringLiteral("buttons"), rowAt,
                                  [&](const QJsonObject& button, const QString& buttonAt) {
                                      row->GetButtons().Append(
                                          readButton(button, buttonAt, &group));
                                  });
                });
        });
    return tab;
}

CFxUIRibbonButton* CFxUIJsonReader::readButton(const QJsonObject& json, const QString& path,
                                               CFxUIGroup* group)
{
    checkKeys(json, path,
              {QStringLiteral("kind"), QStringLiteral("id"), QStringLiteral("text"),
               QStringLiteral("command"), QStringLiteral("displayStyle"),
               QStringLiteral("splitStyle"), QStringLiteral("splitBehavior"),
               QStringLiteral("buttons")});
    const int kind = buttonKind(string(json, QStringLiteral("kind"), path), path);
    CFxUIRibbonButton* button =
        m_ui.CreateRibbonButton(kind, string(json, QStringLiteral("id"), path));
    button->SetText(string(json, QStringLiteral("text"), path));
    button->AttachCommand(readAttachedCommand(json.value(QStringLiteral("command")), path, group));
    button->SetDisplayStyle(integer(json, QStringLiteral("displayStyle"), path));
    button->SetSplitStyle(integer(json, QStringLiteral("splitStyle"), path));
    button->SetSplitBehavior(integer(json, QStringLiteral("splitBehavior"), path));
    forEachObject(json, QStringLiteral("buttons"), path,
                  [&](const QJsonObject& sub, const QString& at) {
                      button->GetSubButtons().Append(readButton(sub, at, group));
                  });
    return button;
}

CFxUIRibbonSystemMenuItem*
CFxUIJsonReader::readSystemMenuItem(const QJsonObject& json, const QString& path, CFxUIGroup* group)
{
    checkKeys(json, path,
              {QStringLiteral("id"), QStringLiteral("text"), QStringLiteral("separator"),
               QStringLiteral("command"), QStringLiteral("items")});
    CFxUIRibbonSystemMenuItem* item =
        m_ui.CreateRibbonSystemMenuItem(string(json, QStringLiteral("id"), path, true));
    item->SetText(string(json, QStringLiteral("text"), path));
    item->AttachCommand(readAttachedCommand(json.value(QStringLiteral("command")), path, group));
    forEachObject(json, QStringLiteral("items"), path,
                  [&](const QJsonObject& sub, const QString& at) {
                      item->GetSubItems().Append(readSystemMenuItem(sub, at, group));
                  });
    return item;
}

CFxUICommand* CFxUIJsonReader::readCommand(const QJsonObject& json, const QString& path,
                                           CFxUIGroup* owner)
{
    checkKeys(json, path,
              {QStringLiteral("id"), QStringLiteral("name"), QStringLiteral("macro"),
               QStringLiteral("actionId"), QStringLiteral("description"),
               QStringLiteral("smallIcon"), QStringLiteral("largeIcon"),
               QStringLiteral("extendedTooltip")});
    const QString id = string(json, QStringLiteral("id"), path, true);
    if (owner)
        claim(m_commandPaths[key(owner->GetIdentifier().toQString())], id, path,
              "command in the group");
    const QJsonArray small = icons(json, QStringLiteral("smallIcon"), path);
    const QJsonArray large = icons(json, QStringLiteral("largeIcon"), path);
    CFxUICommand* command = m_ui.CreateCommand(id, owner);
    if (owner)
        m_commands[key(owner->GetIdentifier().toQString())].insert(key(id), command);
    command->SetName(string(json, QStringLiteral("name"), path));
    command->SetMacro(string(json, QStringLiteral("macro"), path));
    command->SetActionId(string(json, QStringLiteral("actionId"), path));
    command->SetDescription(string(json, QStringLiteral("description"), path));
    command->SetSmallIcon(small.at(0).toString(), small.at(1).toString());
    command->SetLargeIcon(large.at(0).toString(), large.at(1).toString());
    return command;
}

CFxUICommand* CFxUIJsonReader::readAttachedCommand(const QJsonValue& json, const QString& path,
                                                   CFxUIGroup* group)
{
    if (json.isUndefined() || json.isNull())
        return nullptr;
    if (json.isObject())
        return readCommand(json.toObject(), path + QStringLiteral("/command"), nullptr);
    if (!json.isString())
        fail(path, QStringLiteral("'command' must be a command's identifier or a command"));
    const QString commandKey = key(json.toString());
    for (CFxUIGroup* candidate : m_ui.GetMenuGroups()) {
        if (group && candidate != group)
            continue;
        if (CFxUICommand* command =
                m_commands.value(key(candidate->GetIdentifier().toQString())).value(commandKey))
            return command;
    }
    fail(path, QStringLiteral("no command '%1' in the group's commands").arg(json.toString()));
}

void CFxUIJsonReader::readWorkspace(const QJsonObject& json, const QString& path)
{
    checkKeys(json, path, {QStringLiteral("name"), QStringLiteral("tabs")});
    CFxUIWorkspace* workspace =
        m_ui.CreateWorkspace(string(json, QStringLiteral("name"), path, true));
    m_ui.GetWorkspaces().Append(workspace);
    const QJsonArray tabs = array(json, QStringLiteral("tabs"), path);
    QSet<const CFxUIRibbonTab*> listed;
    for (const QJsonValue& tabId : tabs) {
        CFxUIRibbonTab* found = m_tabs.value(key(tabId.toString()));
        if (!found)
            fail(path, QStringLiteral("no tab '%1' in any group").arg(tabId.toString()));
        // A tab named again moves to its new place, as in any list of the model.
        if (listed.contains(found))
            workspace->GetRibbonTabs().Append(found);
        else
            workspace->GetRibbonTabs().AppendNew(found);
        listed.insert(found);
    }
}

void CFxUIJsonReader::claim(QHash<QString, QString>& seen, const QString& identifier,
                            const QString& path, const char* what)
{
    const auto first = seen.constFind(key(identifier));
    if (first != seen.constEnd())
        fail(path, QStringLiteral("a second %1 '%2' (the first is %3)")
                       .arg(QLatin1String(what), identifier, *first));
    seen.insert(key(identifier), path);
}

QString CFxUIJsonReader::key(const QString& identifier)
{
    // The host finds objects by their identifiers without regard to letter case.
    return identifier.toCaseFolded();
}
