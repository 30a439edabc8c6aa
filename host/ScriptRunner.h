#pragma once

#include "ScriptStatement.h"

#include <QDir>
#include <QString>
#include <QStringList>

class EventPrinter;
class HostSession;

// Runs a host script statement by statement. Relative paths in a script are taken from
// `baseFolder` (the script file's folder). The first statement that cannot be carried out
// ends the run with an error event.
class ScriptRunner
{
public:
    ScriptRunner(HostSession& session, EventPrinter& printer);

    // Returns false when the script could not be run to its end.
    bool run(const QString& script, const QDir& baseFolder);
    // The first words of the host's own statements.
    static QStringList statementKeywords();

private:
    void execute(const ScriptStatement& statement, const QDir& baseFolder);
    // The path that a statement's word names, taken from `baseFolder`; empty for an empty word.
    static QString pathOf(const QString& word, const QDir& baseFolder);
    static int documentNumber(const ScriptStatement& statement);
    static void expectWords(const ScriptStatement& statement, int count, const char* usage);

    HostSession& m_session;
    EventPrinter& m_printer;
};
