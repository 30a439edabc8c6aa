#include "EventRecorder.h"

#include <OdEventLog.h>

EventRecorder::EventRecorder() : m_previous(OdEventLog::setSink(this)) {}

EventRecorder::~EventRecorder()
{
    OdEventLog::setSink(m_previous);
}

void EventRecorder::hostEvent(const QString& name, const OdEventFields& fields)
{
    // A deep copy: the name may be a QStringLiteral whose text lives in a module's library,
    // and the event outlives the module when the library is unloaded. (The fields are
    // copied into the JSON object's own storage.)
    RecordedEvent event{QString(name.constData(), name.size()), {}};
    for (const auto& field : fields)
        event.fields.insert(field.first, field.second);
    m_events.append(event);
}
