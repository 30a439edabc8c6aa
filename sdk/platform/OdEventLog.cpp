#include "OdEventLog.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

OdEventSink::~OdEventSink() = default;

void OdEventSink::hostTextEvent(const QString& name, const OdEventFields& fields,
                                const QString& field, const OdJsonText& text)
{
    OdEventFields all = fields;
    all.append({field, QJsonDocument::fromJson(text(true)).object()});
    hostEvent(name, all);
}

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

void OdEventLog::report(const QString& name, const OdEventFields& fields, const QString& field,
                        const OdJsonText& text)
{
    if (g_sink)
        g_sink->hostTextEvent(name, fields, field, text);
}
