#include "ScriptParser.h"

#include "HostError.h"

QVector<ScriptStatement> ScriptParser::parse(const QString& script)
{
    QVector<ScriptStatement> statements;
    const QStringList lines = script.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i)
        parseLine(lines[i], i + 1, statements);
    return statements;
}

void ScriptParser::parseLine(const QString& line, int number, QVector<ScriptStatement>& statements)
{
    ScriptStatement statement;
    statement.line = number;
    QString word;
    bool inWord = false;
    bool quoted = false;
    auto endWord = [&] {
        if (inWord)
            statement.words << word;
        word.clear();
        inWord = false;
    };
    auto endStatement = [&] {
        endWord();
        statement.text = statement.words.join(QLatin1Char(' '));
        if (!statement.words.isEmpty())
            statements << statement;
        statement.words.clear();
    };
    for (const QChar c : line) {
        if (quoted) {
            if (c == QLatin1Char('"'))
                quoted = false;
            else
                word += c;
        } else if (c == QLatin1Char('"')) {
            quoted = true;
            inWord = true;
        } else if (c == QLatin1Char('#')) {
            break;
        } else if (c == QLatin1Char(';')) {
            endStatement();
        } else if (c.isSpace()) {
            endWord();
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted)
        throw HostError(QStringLiteral("line %1: a double quote is not closed").arg(number));
    endStatement();
}
