#include "OdDxfGroupStream.h"

#include "OdError.h"

#include <algorithm>
#include <utility>

namespace {
// Large enough that reading costs few calls, small enough to stay in the cache.
constexpr std::uint64_t kBlockSize = 64 * 1024;

[[noreturn]] void fail(const QString& source, const QString& reason)
{
    throw OdError(
        toOdString(QStringLiteral("%1 is not a readable DXF drawing: %2").arg(source, reason)));
}

[[noreturn]] void failAt(const QString& source, int line, const QString& reason)
{
    fail(source, QStringLiteral("line %1: %2").arg(line).arg(reason));
}
} // namespace

OdDxfGroupStream::OdDxfGroupStream(OdStreamBuf& stream, QString source)
    : m_stream(stream), m_source(std::move(source)), m_left(stream.length())
{}

bool OdDxfGroupStream::next(OdDxfGroup& group)
{
    QByteArray codeLine;
    if (m_ended || !nextLine(codeLine)) {
        if (!m_ended && !m_started)
            fail(m_source, QStringLiteral("the file is empty"));
        return false;
    }
    bool ok = false;
    const int code = codeLine.trimmed().toInt(&ok);
    if (!ok)
        failAt(
            m_source, m_line,
            QStringLiteral("'%1' is not a group code").arg(QString::fromLatin1(codeLine.left(40))));
    QByteArray value;
    if (!nextLine(value))
        failAt(m_source, m_line, QStringLiteral("group code %1 has no value").arg(code));
    group = OdDxfGroup(code, std::move(value));
    if (!m_started && code != 999) {
        if (!group.isStart("SECTION"))
            failAt(m_source, m_line, QStringLiteral("it does not begin with a SECTION"));
        m_started = true;
    }
    m_ended = group.isStart("EOF");
    return true;
}

bool OdDxfGroupStream::nextLine(QByteArray& line)
{
    line.clear();
    for (;;) {
        const int end = m_block.indexOf('\n', m_position);
        if (end >= 0) {
            line += QByteArray::fromRawData(m_block.constData() + m_position, end - m_position);
            m_position = end + 1;
            break;
        }
        line +=
            QByteArray::fromRawData(m_block.constData() + m_position, m_block.size() - m_position);
        m_position = m_block.size();
        if (!fill()) {
            if (line.isEmpty())
                return false;
            break;
        }
    }
    if (line.endsWith('\r'))
        line.chop(1);
    ++m_line;
    return true;
}

bool OdDxfGroupStream::fill()
{
    if (m_left == 0)
        return false;
    const bool first = m_line == 0 && m_block.isEmpty();
    const auto size = static_cast<int>(std::min(m_left, kBlockSize));
    m_block.resize(size);
    m_stream.getBytes(m_block.data(), static_cast<std::uint32_t>(size));
    m_left -= static_cast<std::uint64_t>(size);
    m_position = 0;
    if (first)
        checkFirstBlock();
    return true;
}

void OdDxfGroupStream::checkFirstBlock() const
{
    if (m_block.startsWith("AutoCAD Binary DXF"))
        fail(m_source, QStringLiteral("binary DXF is not read, only ASCII DXF"));
}
