// Splitting a host script into statements and words.
#include "ScriptParser.h"

#include "HostError.h"

#include <gtest/gtest.h>

namespace {
QStringList wordsOf(const QString& script)
{
    QStringList statements;
    for (const ScriptStatement& statement : ScriptParser::parse(script))
        statements << QString::number(statement.line) + ": " + statement.words.join('|');
    return statements;
}
} // namespace

TEST(ScriptParserTest, LinesAndSemicolonsSeparateStatementsAndHashStartsAComment)
{
    EXPECT_EQ(wordsOf("load ExtCommands\r\n\n  open\tplan.dxf ;; activate 1\n"
                      "# only a comment\nHome   # runs the home command;not a statement"),
              QStringList({"1: load|ExtCommands", "3: open|plan.dxf", "3: activate|1", "5: Home"}));
    EXPECT_TRUE(ScriptParser::parse(" \n#\n ; ").isEmpty());
}

TEST(ScriptParserTest, DoubleQuotesKeepBlanksSemicolonsAndHashesInOneWord)
{
    EXPECT_EQ(wordsOf("SAMPLELOAD \"my ribbon.json\" \"\"; X \"a;b # c\" pre\"fix suf\"fix"),
              QStringList({"1: SAMPLELOAD|my ribbon.json|", "1: X|a;b # c|prefix suffix"}));
    EXPECT_EQ(ScriptParser::parse("open \"my plan.dxf\"").first().text, "open my plan.dxf");
}

TEST(ScriptParserTest, AnUnclosedQuoteRefusesTheWholeScriptNamingItsLine)
{
    try {
        ScriptParser::parse("Home\nopen \"plan.dxf\nHome");
        ADD_FAILURE() << "the script was accepted";
    } catch (const HostError& error) {
        EXPECT_EQ(error.message(), "line 2: a double quote is not closed");
    }
}
