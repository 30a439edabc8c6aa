#include "RecordedEvents.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace {
QString text(const QJsonValue& value)
{
    if (value.isString())
        return value.toString();
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}
} // namespace

QVector<RecordedEvent> RecordedEvents::named(const QString& name) const
{
    QVector<RecordedEvent> matching;
    for (const RecordedEvent& event : m_events) {
        if (event.name == name)
            matching.append(event);
    }
    return matching;
}

QStringList RecordedEvents::names() const
{
    QStringList result;
    for (const RecordedEvent& event : m_events)
        result << event.name;
    return result;
}

QStringList RecordedEvents::values(const QString& name, const QString& field) const
{
    QStringList result;
    for (const RecordedEvent& event : named(name))
        result << event.field(field);
    return result;
}

QStringList RecordedEvents::describe(const QStringList& wanted, const QString& field) const
{
    QStringList result;
    for (const RecordedEvent& event : m_events) {
        if (!wanted.contains(event.name))
            continue;
        result << (field.isEmpty() || !event.fields.contains(field)
                       ? event.name
                       : event.name + QLatin1Char(':') + event.field(field));
    }
    return result;
}

QStringList RecordedEvents::timeline(const QStringList& wanted) const
{
    QHash<QString, QString> fieldOf;
    for (const QString& entry : wanted)
        fieldOf.insert(entry.section(QLatin1Char(' '), 0, 0), entry.section(QLatin1Char(' '), 1));
    QStringList result;
    for (const RecordedEvent& event : m_events) {
        if (!fieldOf.contains(event.name))
            continue;
        const QString field = fieldOf.value(event.name);
        result << (field.isEmpty()
                       ? event.name
                       : event.name + QLatin1Char(' ') + text(event.fields.value(field)));
    }
    return result;
}
