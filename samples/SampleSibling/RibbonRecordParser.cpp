#include "RibbonRecordParser.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace {
// The string fields of a record by their JSON keys; "children" is read as a list.
const std::pair<const char*, QString RibbonItem::*> kStringFields[] = {
    {"text", &RibbonItem::text},
    {"id", &RibbonItem::id},
    {"rowId", &RibbonItem::rowId},
    {"tabText", &RibbonItem::tabText},
    {"tabId", &RibbonItem::tabId},
    {"panelText", &RibbonItem::panelText},
    {"panelId", &RibbonItem::panelId},
    {"commandName", &RibbonItem::commandName},
    {"description", &RibbonItem::description},
    {"largeIcon", &RibbonItem::largeIcon},
    {"smallIcon", &RibbonItem::smallIcon},
    {"type", &RibbonItem::type},
};

QString* stringField(RibbonItem& record, const QString& key)
{
    for (const auto& field : kStringFields) {
        if (key == QLatin1String(field.first))
            return &(record.*field.second);
    }
    return nullptr;
}

// Each escape letter followed by the character it stands for.
const char kSimpleEscapes[] = "\"\"\\\\//b\bf\fn\nr\rt\t";

bool isHexDigit(QChar c)
{
    return c.unicode() < 128 && std::isxdigit(c.unicode());
}
} // namespace

RibbonRecordParser::RibbonRecordParser(QString text) : m_text(std::move(text)) {}

bool RibbonRecordParser::parse(std::vector<std::unique_ptr<RibbonItem>>& owned,
                               QList<RibbonItem*>& records)
{
    skipSpace();
    if (!expect('['))
        return false;
    std::vector<Level> levels{{&records, nullptr, true}};
    while (!levels.empty()) {
        if (!step(levels, owned))
            return false;
    }
    skipSpace();
    return m_at == m_text.size() || fail(QStringLiteral("more text after the list"));
}

bool RibbonRecordParser::step(std::vector<Level>& levels,
                              std::vector<std::unique_ptr<RibbonItem>>& owned)
{
    Level& level = levels.back();
    skipSpace();
    const QChar closer = QLatin1Char(level.list ? ']' : '}');
    if (peek() == closer) {
        ++m_at;
        levels.pop_back();
        return true;
    }
    if (!level.first && !expect(','))
        return false;
    level.first = false;
    skipSpace();
    return level.list ? readRecordStart(levels, owned) : readField(levels);
}

bool RibbonRecordParser::readRecordStart(std::vector<Level>& levels,
                                         std::vector<std::unique_ptr<RibbonItem>>& owned)
{
    if (!expect('{'))
        return false;
    owned.push_back(std::make_unique<RibbonItem>());
    RibbonItem* record = owned.back().get();
    levels.back().list->append(record);
    levels.push_back({nullptr, record, true});
    return true;
}

bool RibbonRecordParser::readField(std::vector<Level>& levels)
{
    RibbonItem* record = levels.back().record;
    QString key;
    if (!readString(key))
        return false;
    skipSpace();
    if (!expect(':'))
        return false;
    skipSpace();
    if (key == QLatin1String("children")) {
        if (!expect('['))
            return false;
        levels.push_back({&record->children, nullptr, true});
        return true;
    }
    QString* field = stringField(*record, key);
    if (!field)
        return fail(QStringLiteral("a record has no field \"%1\"").arg(key));
    return readString(*field);
}

bool RibbonRecordParser::readString(QString& value)
{
    if (!expect('"'))
        return false;
    value.clear();
    while (m_at < m_text.size()) {
        const QChar c = m_text.at(m_at++);
        if (c == QLatin1Char('"'))
            return true;
        if (c == QLatin1Char('\\')) {
            if (!readEscape(value))
                return false;
        } else if (c.unicode() < 0x20) {
            return fail(QStringLiteral("a control character in a string"));
        } else {
            value += c;
        }
    }
    return fail(QStringLiteral("a string is not closed"));
}

bool RibbonRecordParser::readEscape(QString& value)
{
    const QChar c = peek();
    ++m_at;
    for (int i = 0; kSimpleEscapes[i]; i += 2) {
        if (c == QLatin1Char(kSimpleEscapes[i])) {
            value += QLatin1Char(kSimpleEscapes[i + 1]);
            return true;
        }
    }
    const QString hex = m_text.mid(m_at, 4);
    if (c != QLatin1Char('u') || hex.size() != 4 ||
        !std::all_of(hex.begin(), hex.end(), isHexDigit))
        return fail(QStringLiteral("an unknown escape in a string"));
    value += QChar(hex.toUShort(nullptr, 16));
    m_at += 4;
    return true;
}

bool RibbonRecordParser::expect(char wanted)
{
    if (peek() != QLatin1Char(wanted))
        return fail(QStringLiteral("expected '%1'").arg(QLatin1Char(wanted)));
    ++m_at;
    return true;
}

QChar RibbonRecordParser::peek() const
{
    return m_at < m_text.size() ? m_text.at(m_at) : QChar();
}

void RibbonRecordParser::skipSpace()
{
    while (m_at < m_text.size() && m_text.at(m_at).isSpace())
        ++m_at;
}

bool RibbonRecordParser::fail(const QString& problem)
{
    const int line = m_text.leftRef(m_at).count(QLatin1Char('\n')) + 1;
    const int lineStart = m_at > 0 ? m_text.lastIndexOf(QLatin1Char('\n'), m_at - 1) : -1;
    const int column = m_at - lineStart;
    m_error = QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(problem);
    return false;
}
