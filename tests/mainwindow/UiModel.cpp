#include "UiModel.h"

#include <CFxUI.h>
#include <CFxUIJsonWriter.h>

UiModel UiModel::of(const CFxUI& ui)
{
    return UiModel(CFxUIJsonWriter::write(ui));
}

QJsonObject UiModel::group(const QString& groupId) const
{
    for (const QJsonValue& group : m_model.value(QStringLiteral("groups")).toArray()) {
        if (group[QStringLiteral("id")].toString() == groupId)
            return group.toObject();
    }
    return {};
}

QJsonArray UiModel::menuEntries(const QString& groupId, const QString& menuId) const
{
    for (const QJsonValue& menu : group(groupId).value(QStringLiteral("menus")).toArray()) {
        if (menu[QStringLiteral("id")].toString() == menuId)
            return menu[QStringLiteral("entries")].toArray();
    }
    return {};
}

QStringList UiModel::menuEntryIds(const QString& groupId, const QString& menuId) const
{
    QStringList ids;
    for (const QJsonValue& entry : menuEntries(groupId, menuId))
        ids << entry[QStringLiteral("id")].toString();
    return ids;
}

QJsonObject UiModel::helpEntry(const QString& groupId, const QString& entryId) const
{
    for (const QJsonValue& entry : menuEntries(groupId)) {
        if (entry[QStringLiteral("id")].toString() == entryId)
            return entry.toObject();
    }
    return {};
}

QStringList UiModel::groupItems(const QString& groupId) const
{
    QStringList items;
    for (const QJsonValue& item : group(groupId).value(QStringLiteral("items")).toArray())
        items << item.toString();
    return items;
}

QStringList UiModel::systemMenu() const
{
    QStringList entries;
    for (const QJsonValue& entry : m_model.value(QStringLiteral("ribbonSystemMenu")).toArray()) {
        const QString id = entry[QStringLiteral("id")].toString();
        entries << (id.isEmpty()
                        ? entry[QStringLiteral("text")].toString() + QStringLiteral(" -> ") +
                              entry[QStringLiteral("command")][QStringLiteral("macro")].toString()
                        : id);
    }
    return entries;
}
