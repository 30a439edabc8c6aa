#include "OdEventLog.h"

#include <utility>

OdEventSink::~OdEventSink() = default;

namespace {
OdEventSink* g_sink = nullptr;
} // namespace

OdEventSink* OdEventLog::setSink(OdEventSink* sink)
{
    return std::exchange(g_sink, sink);
}

OdEventSink* OdEventLog::sink()
{
    return g_sink;
}

void OdEventLog::report(const QString& name, const OdEventFields& fields)
{
    if (g_sink)
        g_sink->hostEvent(name, fields);
}
