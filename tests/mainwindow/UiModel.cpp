#include "UiModel.h"

#include <QJsonDocument>

#include <CFxUIJsonWriter.h>

namespace {
QJsonObject withId(const QJsonValue& list, const QString& id)
{
    for (const QJsonValue item : list.toArray()) {
        if (item["id"].toString() == id)
            return item.toObject();
    }
    return {};
}
} // namespace

UiModel UiModel::of(const CFxHostUI& ui)
{
    return UiModel(CFxUIJsonWriter::write(ui));
}

QJsonArray UiModel::menuEntries(const QString& groupId, const QString& menuId) const
{
    return withId(withId(m_model["groups"], groupId)["menus"], menuId)["entries"].toArray();
}

QStringList UiModel::menuEntryIds(const QString& groupId, const QString& menuId) const
{
    QStringList ids;
    for (const QJsonValue entry : menuEntries(groupId, menuId))
        ids << entry["id"].toString();
    return ids;
}

QJsonObject UiModel::helpEntry(const QString& groupId, const QString& entryId) const
{
    return withId(menuEntries(groupId, "ID_MnHelp"), entryId);
}

QStringList UiModel::groupItems(const QString& groupId) const
{
    QStringList items;
    for (const QJsonValue item : withId(m_model["groups"], groupId)["items"].toArray())
        items << item.toString();
    return items;
}

QStringList UiModel::systemMenu() const
{
    QStringList entries;
    for (const QJsonValue entry : m_model["ribbonSystemMenu"].toArray()) {
        const QString id = entry["id"].toString();
        entries << (id.isEmpty()
                        ? entry["text"].toString() + " -> " + entry["command"]["macro"].toString()
                        : id);
    }
    return entries;
}

QStringList UiModel::ribbonTabs(const QString& groupId) const
{
    QStringList tabs;
    for (const QJsonValue tab : withId(m_model["groups"], groupId)["tabs"].toArray())
        tabs << tab["id"].toString();
    return tabs;
}

void PrintTo(const UiModel& model, std::ostream* out)
{
    *out << QJsonDocument(model.m_model).toJson(QJsonDocument::Compact).toStdString();
}
