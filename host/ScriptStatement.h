#pragma once

#include <QString>
#include <QStringList>

// One statement of a host script: its words, as the script's line gave them.
struct ScriptStatement
{
    QStringList words;
    int line = 0;
    QString text;
};
