#include "RibbonRecordJson.h"

#include <utility>
#include <vector>

QString RibbonRecordJson::write(const QList<RibbonItem*>& records)
{
    QString out = QStringLiteral("[");
    // Each level: the list being written and the index of its next record.
    std::vector<std::pair<const QList<RibbonItem*>*, int>> levels{{&records, 0}};
    while (!levels.empty()) {
        auto& [list, next] = levels.back();
        if (next == list->size()) {
            levels.pop_back();
            out += levels.empty() ? QStringLiteral("]") : QStringLiteral("]}");
            continue;
        }
        if (next > 0)
            out += QLatin1Char(',');
        const RibbonItem& record = *list->at(next++);
        out += QLatin1Char('{');
        writeFields(record, out);
        out += QStringLiteral(",\"children\":[");
        levels.push_back({&record.children, 0});
    }
    return out;
}

void RibbonRecordJson::writeFields(const RibbonItem& record, QString& out)
{
    const std::pair<const char*, const QString*> fields[] = {
        {"text", &record.text},
        {"id", &record.id},
        {"rowId", &record.rowId},
        {"tabText", &record.tabText},
        {"tabId", &record.tabId},
        {"panelText", &record.panelText},
        {"panelId", &record.panelId},
        {"commandName", &record.commandName},
        {"description", &record.description},
        {"largeIcon", &record.largeIcon},
        {"smallIcon", &record.smallIcon},
        {"type", &record.type},
    };
    bool first = true;
    for (const auto& [key, value] : fields) {
        if (!first)
            out += QLatin1Char(',');
        first = false;
        writeString(QLatin1String(key), out);
        out += QLatin1Char(':');
        writeString(*value, out);
    }
}

void RibbonRecordJson::writeString(const QString& value, QString& out)
{
    out += QLatin1Char('"');
    for (const QChar c : value) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            out += QLatin1Char('\\') + QString(c);
        else if (c.unicode() < 0x20)
            out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            out += c;
    }
    out += QLatin1Char('"');
}
