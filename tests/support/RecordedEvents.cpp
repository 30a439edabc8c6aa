#include "RecordedEvents.h"

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
