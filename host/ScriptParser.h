#pragma once

#include "ScriptStatement.h"

#include <QVector>

// Splits a script into statements: one per line, or several on a line separated by ';'.
// '#' outside quotes starts a comment. Words are separated by blanks; double quotes keep
// blanks inside one word. Throws HostError for an unterminated quote.
class ScriptParser
{
public:
    static QVector<ScriptStatement> parse(const QString& script);

private:
    static void parseLine(const QString& line, int number, QVector<ScriptStatement>& statements);
};
