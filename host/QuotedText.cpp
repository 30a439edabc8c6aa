#include "QuotedText.h"

namespace {
// `message` with every stretch between two single quotes that is too long cut.
QString cutBetweenQuotes(const QString& message)
{
    QString result;
    int from = 0;
    while (true) {
        const int open = message.indexOf(QLatin1Char('\''), from);
        const int close = open < 0 ? -1 : message.indexOf(QLatin1Char('\''), open + 1);
        if (close < 0)
            return result + message.mid(from);
        result += message.mid(from, open + 1 - from) +
                  QuotedText::of(message.mid(open + 1, close - open - 1)) + QLatin1Char('\'');
        from = close + 1;
    }
}
} // namespace

QString QuotedText::of(const QString& text)
{
    if (text.size() <= kMaxLength)
        return text;
    return text.left(kMaxLength) + QStringLiteral("... (%1 characters)").arg(text.size());
}

QString QuotedText::within(QString message, const QStringList& texts)
{
    for (const QString& text : texts) {
        if (text.size() > kMaxLength)
            message.replace(text, of(text));
    }
    return cutBetweenQuotes(message);
}
