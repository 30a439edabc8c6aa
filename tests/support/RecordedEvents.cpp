#include "RecordedEvents.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

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
        const QJsonValue value = event.fields.value(field);
        // A string as it is; anything else as JSON, out of the array that wraps it.
        const QString json =
            QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
        const QString text = value.isString() ? value.toString() : json.mid(1).chopped(1);
        result << (field.isEmpty() ? event.name : event.name + QLatin1Char(' ') + text);
    }
    return result;
}
