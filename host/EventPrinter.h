#pragma once

#include <OdEventSink.h>

#include <cstdio>
#include <functional>

// Writes every event to standard output as it happens: one JSON object per line, or a
// readable line. Output is flushed per event, so a reader sees each one at once.
class EventPrinter : public OdEventSink
{
public:
    EventPrinter(bool json, std::FILE* output);

    void hostEvent(const QString& name, const OdEventFields& fields) override;
    void hostTextEvent(const QString& name, const OdEventFields& fields, const QString& field,
                       const OdJsonText& text) override;
    // A line that is not an event (the statement being run, in readable mode only).
    void note(const QString& text);

    // Also hands every readable line to `echo` (the window's log).
    void setEcho(std::function<void(const QString&)> echo) { m_echo = std::move(echo); }

    static QByteArray jsonLine(const QString& name, const OdEventFields& fields);
    static QByteArray readableLine(const QString& name, const OdEventFields& fields);
    // The same lines for an event whose last field is an object given as text.
    static QByteArray jsonLine(const QString& name, const OdEventFields& fields,
                               const QString& field, const OdJsonText& text);
    static QByteArray readableLine(const QString& name, const OdEventFields& fields,
                                   const QString& field, const OdJsonText& text);

private:
    void write(const QByteArray& line);

    bool m_json;
    std::FILE* m_output;
    std::function<void(const QString&)> m_echo;
};
