#pragma once

#include <QJsonObject>
#include <QStringList>
#include <QVector>

// One observed event: its name and its fields.
struct RecordedEvent
{
    QString name;
    QJsonObject fields;

    QString field(const QString& key) const { return fields.value(key).toString(); }
};

// Events in the order they happened, with the questions tests ask of them.
class RecordedEvents
{
public:
    void append(const RecordedEvent& event) { m_events.append(event); }
    void clear() { m_events.clear(); }

    const QVector<RecordedEvent>& all() const { return m_events; }
    QVector<RecordedEvent> named(const QString& name) const;
    int count(const QString& name) const { return named(name).size(); }
    QStringList names() const;
    // The values of one field of every event of that name, in order.
    QStringList values(const QString& name, const QString& field) const;
    // "name" or "name:field=value" for each event, for comparing whole sequences.
    QStringList describe(const QStringList& wanted, const QString& field = QString()) const;
    // One line for each event that `wanted` names: "name" wants the event's name alone,
    // "name field" its name and the value of that field (numbers, arrays, null as JSON).
    QStringList timeline(const QStringList& wanted) const;

private:
    QVector<RecordedEvent> m_events;
};
