#include "CFxJsonTextWriter.h"

#include <algorithm>
#include <utility>

namespace {
char hexDigit(unsigned digit)
{
    return static_cast<char>(digit < 10 ? '0' + digit : 'a' + digit - 10);
}
} // namespace

CFxJsonTextWriter::CFxJsonTextWriter(bool compact) : m_compact(compact) {}

void CFxJsonTextWriter::beginObject()
{
    startValue();
    m_text += m_compact ? "{" : "{\n";
    m_counts.push_back(0);
}

void CFxJsonTextWriter::endObject()
{
    if (m_counts.back() > 0 && !m_compact)
        m_text += '\n';
    m_counts.pop_back();
    indent(m_counts.size());
    m_text += '}';
    if (m_counts.empty() && !m_compact)
        m_text += '\n';
}

void CFxJsonTextWriter::beginArray()
{
    startValue();
    m_text += m_compact ? "[" : "[\n";
    m_counts.push_back(0);
}

void CFxJsonTextWriter::endArray()
{
    if (m_counts.back() > 0 && !m_compact)
        m_text += '\n';
    m_counts.pop_back();
    indent(m_counts.size());
    m_text += ']';
    if (m_counts.empty() && !m_compact)
        m_text += '\n';
}

void CFxJsonTextWriter::key(const char* name)
{
    separate();
    m_text += '"';
    m_text += name;
    m_text += m_compact ? "\":" : "\": ";
    m_keyed = true;
}

void CFxJsonTextWriter::value(const QString& text)
{
    startValue();
    m_text += '"';
    escape(text);
    m_text += '"';
}

void CFxJsonTextWriter::value(bool flag)
{
    startValue();
    m_text += flag ? "true" : "false";
}

void CFxJsonTextWriter::value(int number)
{
    startValue();
    m_text += QByteArray::number(number);
}

void CFxJsonTextWriter::null()
{
    startValue();
    m_text += "null";
}

QByteArray CFxJsonTextWriter::take()
{
    return std::exchange(m_text, QByteArray());
}

void CFxJsonTextWriter::startValue()
{
    // A member's value follows its key; an element of an array starts a line of its own.
    if (m_counts.empty() || m_keyed) {
        m_keyed = false;
        return;
    }
    separate();
}

void CFxJsonTextWriter::separate()
{
    if (m_counts.back()++ > 0)
        m_text += m_compact ? "," : ",\n";
    indent(m_counts.size());
}

void CFxJsonTextWriter::indent(std::size_t level)
{
    if (!m_compact)
        m_text.append(static_cast<int>(4 * std::min(level, kMaxIndentLevel)), ' ');
}

void CFxJsonTextWriter::escape(const QString& text)
{
    const QChar* at = text.constData();
    const QChar* const end = at + text.size();
    while (at != end) {
        const ushort unit = at->unicode();
        if (unit >= 0x80) {
            // A run of characters beyond ASCII goes out as UTF-8.
            const QChar* run = at;
            while (at != end && at->unicode() >= 0x80)
                ++at;
            m_text += QString(run, static_cast<int>(at - run)).toUtf8();
            continue;
        }
        ++at;
        switch (unit) {
        case '"':
            m_text += "\\\"";
            break;
        case '\\':
            m_text += "\\\\";
            break;
        case '\b':
            m_text += "\\b";
            break;
        case '\f':
            m_text += "\\f";
            break;
        case '\n':
            m_text += "\\n";
            break;
        case '\r':
            m_text += "\\r";
            break;
        case '\t':
            m_text += "\\t";
            break;
        default:
            if (unit < 0x20) {
                m_text += "\\u00";
                m_text += hexDigit(unit >> 4);
                m_text += hexDigit(unit & 0xf);
            } else {
                m_text += static_cast<char>(unit);
            }
        }
    }
}
