#pragma once

#include "RecordedEvents.h"

#include <OdEventSink.h>

// Records every event of the platform, the kernel and the companions while it exists.
class EventRecorder : public OdEventSink
{
public:
    EventRecorder();
    ~EventRecorder() override;
    EventRecorder(const EventRecorder&) = delete;
    EventRecorder& operator=(const EventRecorder&) = delete;

    void hostEvent(const QString& name, const OdEventFields& fields) override;

    const RecordedEvents& events() const { return m_events; }
    void clear() { m_events.clear(); }

private:
    OdEventSink* m_previous;
    RecordedEvents m_events;
};
