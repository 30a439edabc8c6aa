#include "ScriptRunner.h"

#include "EventPrinter.h"
#include "HostError.h"
#include "HostSession.h"
#include "QuotedText.h"
#include "ResidentMemory.h"
#include "ScriptParser.h"

#include <OdEventLog.h>

#include <cstdio>

ScriptRunner::ScriptRunner(HostSession& session, EventPrinter& printer)
    : m_session(session), m_printer(printer)
{}

bool ScriptRunner::run(const QString& script, const QDir& baseFolder)
{
    try {
        for (const ScriptStatement& statement : ScriptParser::parse(script)) {
            m_printer.note(QStringLiteral("> ") + statement.text);
            try {
                execute(statement, baseFolder);
            } catch (const HostError& error) {
                throw HostError(QStringLiteral("line %1 (%2): %3")
                                    .arg(statement.line)
                                    .arg(QuotedText::of(statement.text), error.message()));
            }
            m_session.settle();
        }
    } catch (const HostError& error) {
        OdEventLog::report(QStringLiteral("error"), {{QStringLiteral("message"), error.message()}});
        std::fprintf(stderr, "quillon-host: %s\n", qUtf8Printable(error.message()));
        return false;
    }
    return true;
}

QStringList ScriptRunner::statementKeywords()
{
    return {QStringLiteral("mainframe"),  QStringLiteral("load"),     QStringLiteral("unload"),
            QStringLiteral("open"),       QStringLiteral("activate"), QStringLiteral("close"),
            QStringLiteral("ui"),         QStringLiteral("commands"), QStringLiteral("screenshot"),
            QStringLiteral("wait-events")};
}

void ScriptRunner::execute(const ScriptStatement& statement, const QDir& baseFolder)
{
    const QString keyword = statement.words.first();
    if (keyword == QLatin1String("mainframe")) {
        expectWords(statement, 2, "mainframe create|destroy");
        if (statement.words[1] == QLatin1String("create"))
            m_session.createMainFrame();
        else if (statement.words[1] == QLatin1String("destroy"))
            m_session.destroyMainFrame();
        else
            throw HostError(QStringLiteral("usage: mainframe create|destroy"));
    } else if (keyword == QLatin1String("load")) {
        expectWords(statement, 2, "load NAME");
        m_session.loadModule(statement.words[1]);
    } else if (keyword == QLatin1String("unload")) {
        expectWords(statement, 2, "unload NAME");
        m_session.unloadModule(statement.words[1]);
    } else if (keyword == QLatin1String("open")) {
        expectWords(statement, 2, "open PATH");
        m_session.openDocument(pathOf(statement.words[1], baseFolder));
    } else if (keyword == QLatin1String("activate")) {
        expectWords(statement, 2, "activate N");
        m_session.activateDocument(documentNumber(statement));
    } else if (keyword == QLatin1String("close")) {
        expectWords(statement, 2, "close N");
        m_session.closeDocument(documentNumber(statement));
    } else if (keyword == QLatin1String("ui")) {
        expectWords(statement, 1, "ui");
        m_session.reportUi();
    } else if (keyword == QLatin1String("commands")) {
        expectWords(statement, 1, "commands");
        m_session.reportCommands();
    } else if (keyword == QLatin1String("screenshot")) {
        expectWords(statement, 2, "screenshot PATH");
        m_session.screenshot(pathOf(statement.words[1], baseFolder));
    } else if (keyword == QLatin1String("memory")) {
        expectWords(statement, 1, "memory");
        OdEventLog::report(QStringLiteral("memory"),
                           {{QStringLiteral("resident-kb"), ResidentMemory::kilobytes()}});
    } else if (keyword == QLatin1String("wait-events")) {
        expectWords(statement, 1, "wait-events");
        m_session.waitEvents();
    } else {
        m_session.runCommandLine(keyword, statement.words.mid(1));
    }
}

QString ScriptRunner::pathOf(const QString& word, const QDir& baseFolder)
{
    // The base folder would take an empty word for itself.
    return word.isEmpty() ? word : baseFolder.absoluteFilePath(word);
}

int ScriptRunner::documentNumber(const ScriptStatement& statement)
{
    bool ok = false;
    const int number = statement.words[1].toInt(&ok);
    if (!ok || number < 1)
        throw HostError(QStringLiteral("'%1' is not a document number (1, 2, ...)")
                            .arg(QuotedText::of(statement.words[1])));
    return number;
}

void ScriptRunner::expectWords(const ScriptStatement& statement, int count, const char* usage)
{
    if (statement.words.size() != count)
        throw HostError(QStringLiteral("usage: %1").arg(QLatin1String(usage)));
}
