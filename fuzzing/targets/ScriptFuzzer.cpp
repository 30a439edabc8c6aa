// The host's script parser, given any text: it either refuses the script with a HostError or
// gives statements that a runner can take as they are.
#include "FuzzEnvironment.h"
#include "FuzzFailure.h"
#include "HostError.h"
#include "ScriptParser.h"

#include <cstddef>
#include <cstdint>

namespace {
QString problemWith(const QVector<ScriptStatement>& statements, int lines)
{
    int previousLine = 1;
    for (const ScriptStatement& statement : statements) {
        if (statement.words.isEmpty())
            return QStringLiteral("a statement without words on line %1").arg(statement.line);
        if (statement.line < previousLine || statement.line > lines)
            return QStringLiteral("line %1 out of order or past the end (%2 lines)")
                .arg(statement.line)
                .arg(lines);
        if (statement.text != statement.words.join(QLatin1Char(' ')))
            return QStringLiteral("line %1: the text is not its words").arg(statement.line);
        previousLine = statement.line;
    }
    return {};
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString script =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    try {
        const QVector<ScriptStatement> statements = ScriptParser::parse(script);
        FuzzFailure::check(problemWith(statements, script.count(QLatin1Char('\n')) + 1));
    } catch (const HostError&) {
        // A refused script is an answer.
    }
    return 0;
}
