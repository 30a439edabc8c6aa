#include "OdDxfReader.h"

#include "OdError.h"

namespace {
// Walks the lines of a file, without their line endings, counting them from 1. A carriage
// return before the line feed belongs to the ending only in a file whose lines end in "\r\n"
// (as its first line says); elsewhere it is part of the value, which is written back with it.
class LineCursor
{
public:
    LineCursor(const QByteArray& content, bool crLf) : m_content(content), m_crLf(crLf) {}

    bool atEnd() const { return m_position >= m_content.size(); }
    int lineNumber() const { return m_line; }

    QByteArray next()
    {
        int end = m_content.indexOf('\n', m_position);
        if (end < 0)
            end = m_content.size();
        QByteArray line = m_content.mid(m_position, end - m_position);
        if (m_crLf && line.endsWith('\r'))
            line.chop(1);
        m_position = end + 1;
        ++m_line;
        return line;
    }

    // Whether what follows holds nothing but blanks and end-of-file marks.
    bool onlyPaddingLeft() const
    {
        for (int at = m_position; at < m_content.size(); ++at) {
            const char c = m_content.at(at);
            if (c != ' ' && c != '\t' && c != '\r' && c != '\n' && c != '\x1a' && c != '\0')
                return false;
        }
        return true;
    }

private:
    const QByteArray& m_content;
    const bool m_crLf;
    int m_position = 0;
    int m_line = 0;
};

[[noreturn]] void fail(const QString& source, const QString& reason)
{
    throw OdError(
        toOdString(QStringLiteral("%1 is not a readable DXF drawing: %2").arg(source, reason)));
}

[[noreturn]] void failAt(const QString& source, int line, const QString& reason)
{
    fail(source, QStringLiteral("line %1: %2").arg(line).arg(reason));
}

int groupCode(const QByteArray& text, const QString& source, int line)
{
    bool ok = false;
    const int code = text.trimmed().toInt(&ok);
    if (!ok)
        failAt(source, line,
               QStringLiteral("'%1' is not a group code").arg(QString::fromLatin1(text.left(40))));
    return code;
}

void checkStart(const OdDxfGroup& first, const QString& source, int line)
{
    if (!first.isStart("SECTION"))
        failAt(source, line, QStringLiteral("it does not begin with a SECTION"));
}
} // namespace

std::vector<OdDxfGroup> OdDxfReader::read(const QByteArray& content, const QString& source)
{
    if (content.startsWith("AutoCAD Binary DXF"))
        fail(source, QStringLiteral("binary DXF is not read, only ASCII DXF"));
    if (content.trimmed().isEmpty())
        fail(source, QStringLiteral("the file is empty"));
    std::vector<OdDxfGroup> groups;
    bool started = false;
    LineCursor cursor(content, lineEnding(content) == "\r\n");
    while (!cursor.atEnd()) {
        const QByteArray codeLine = cursor.next();
        const int code = groupCode(codeLine, source, cursor.lineNumber());
        if (cursor.atEnd())
            failAt(source, cursor.lineNumber(),
                   QStringLiteral("group code %1 has no value").arg(code));
        groups.emplace_back(code, cursor.next());
        const OdDxfGroup& group = groups.back();
        if (!started && code != 999) {
            checkStart(group, source, cursor.lineNumber());
            started = true;
        }
        if (group.isStart("EOF")) {
            if (!cursor.onlyPaddingLeft())
                failAt(source, cursor.lineNumber() + 1, QStringLiteral("text after the EOF group"));
            return groups;
        }
    }
    fail(source, QStringLiteral("it ends without an EOF group"));
}

QByteArray OdDxfReader::lineEnding(const QByteArray& content)
{
    const int end = content.indexOf('\n');
    return end > 0 && content.at(end - 1) == '\r' ? QByteArrayLiteral("\r\n")
                                                  : QByteArrayLiteral("\n");
}
