#include "EventRecorder.h"

#include <OdEventLog.h>

EventRecorder::EventRecorder() : m_previous(OdEventLog::setSink(this)) {}

EventRecorder::~EventRecorder()
{
    OdEventLog::setSink(m_previous);
}

void EventRecorder::hostEvent(const QString& name, const OdEventFields& fields)
{
    RecordedEvent event{name, {}};
    for (const auto& field : fields)
        event.fields.insert(field.first, field.second);
    m_events.append(event);
}
