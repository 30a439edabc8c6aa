#include "EventPrinter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {
QByteArray compactJson(const QJsonValue& value)
{
    // QJsonDocument writes only arrays and objects: wrap the value and take it out again.
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

// A value shown as it is: one word that cannot be mistaken for the next field or a quoted text.
bool isPlainWord(const QString& text)
{
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.isSpace() || c == QLatin1Char('"') || c == QLatin1Char('=');
    });
}

QByteArray readableValue(const QJsonValue& value)
{
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Indented).trimmed();
    if (value.isString()) {
        const QString text = value.toString();
        return isPlainWord(text) ? text.toUtf8() : compactJson(value);
    }
    return compactJson(value);
}
} // namespace

EventPrinter::EventPrinter(bool json, std::FILE* output) : m_json(json), m_output(output) {}

void EventPrinter::hostEvent(const QString& name, const OdEventFields& fields)
{
    const QByteArray readable = readableLine(name, fields);
    write(m_json ? jsonLine(name, fields) : readable);
    if (m_echo)
        m_echo(QString::fromUtf8(readable));
}

void EventPrinter::hostTextEvent(const QString& name, const OdEventFields& fields,
                                 const QString& field, const OdJsonText& text)
{
    // The text may be large: only what is shown is written.
    if (m_json)
        write(jsonLine(name, fields, field, text));
    if (!m_json || m_echo) {
        const QByteArray readable = readableLine(name, fields, field, text);
        if (!m_json)
            write(readable);
        if (m_echo)
            m_echo(QString::fromUtf8(readable));
    }
}

void EventPrinter::note(const QString& text)
{
    if (!m_json)
        write(text.toUtf8());
    if (m_echo)
        m_echo(text);
}

QByteArray EventPrinter::jsonLine(const QString& name, const OdEventFields& fields)
{
    QByteArray line = "{\"event\":" + compactJson(name);
    for (const auto& field : fields)
        line += ',' + compactJson(field.first) + ':' + compactJson(field.second);
    return line + '}';
}

QByteArray EventPrinter::readableLine(const QString& name, const OdEventFields& fields)
{
    QByteArray line = name.toUtf8();
    for (const auto& field : fields)
        line += ' ' + field.first.toUtf8() + '=' + readableValue(field.second);
    return line;
}

QByteArray EventPrinter::jsonLine(const QString& name, const OdEventFields& fields,
                                  const QString& field, const OdJsonText& text)
{
    QByteArray line = jsonLine(name, fields);
    line.chop(1);
    return line + ',' + compactJson(field) + ':' + text(true) + '}';
}

QByteArray EventPrinter::readableLine(const QString& name, const OdEventFields& fields,
                                      const QString& field, const OdJsonText& text)
{
    return readableLine(name, fields) + ' ' + field.toUtf8() + '=' + text(false).trimmed();
}

void EventPrinter::write(const QByteArray& line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), m_output);
    std::fputc('\n', m_output);
    std::fflush(m_output);
}
