// The Help-menu entries and their commands through quillon-host, as a user and a sibling
// module meet them.
#include "HostProcess.h"
#include "UiModel.h"

#include <gtest/gtest.h>

namespace {
UiModel uiAt(const HostResult& result, int index)
{
    return UiModel(result.events.named(QStringLiteral("ui"))
                       .value(index)
                       .fields.value(QStringLiteral("model"))
                       .toObject());
}

QStringList commandsAt(const HostResult& result, int index)
{
    QStringList names;
    const auto commands = result.events.named(QStringLiteral("commands")).value(index);
    for (const QJsonValue& name : commands.fields.value(QStringLiteral("names")).toArray())
        names << name.toString();
    return names;
}

QStringList commandResults(const HostResult& result)
{
    QStringList results;
    for (const RecordedEvent& ended : result.events.named(QStringLiteral("command-ended")))
        results << ended.field(QStringLiteral("name")) + QLatin1Char('=') +
                       QString::number(ended.fields.value(QStringLiteral("result")).toInt());
    return results;
}

TEST(MainFrameHostTest, TheHelpCommandsAreKnownOnlyWhileTheMainWindowExists)
{
    HostProcess host;
    const HostResult result =
        host.runScript(QStringLiteral("mainframe create; commands; CHECKFORUPDATES; _RELEASENOTES; "
                                      "mainframe destroy; commands; CHECKFORUPDATES"));
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    EXPECT_EQ(commandsAt(result, 0),
              QStringList({"Home", "Community", "VIEWCAST", "RELEASENOTES", "CHECKFORUPDATES"}));
    EXPECT_EQ(commandsAt(result, 1), QStringList({"Home", "Community", "VIEWCAST"}));
    EXPECT_EQ(commandResults(result), QStringList({"CHECKFORUPDATES=5100", "_RELEASENOTES=5100"}));
    EXPECT_EQ(result.events.count("url-opened"), 2);
    EXPECT_EQ(result.events.values("unknown-command", "name"), QStringList{"CHECKFORUPDATES"});
}

TEST(MainFrameHostTest, CommandsThatASiblingRegisteredFirstAreTheOnesTheEntriesRun)
{
    HostProcess host;
    const HostResult result = host.runScript(
        QStringLiteral("mainframe create; ui; CHECKFORUPDATES; RELEASENOTES; mainframe destroy; "
                       "commands"),
        {"--module", "ForeignHelpCommands", "--module", "ExtCommands", "--module-path",
         EC_FIXTURE_DIR, "--module-path", HostProcess::stageFolder()});
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    EXPECT_EQ(uiAt(result, 0)
                  .helpEntry(QStringLiteral("QUILLON"), QStringLiteral("ID_RELEASENOTES"))
                  .value(QStringLiteral("macro")),
              QStringLiteral("RELEASENOTES"));
    EXPECT_EQ(
        result.events.values("command-added", "name"),
        QStringList({"_CHECKFORUPDATES", "_RELEASENOTES", "_Home", "_Community", "_VIEWCAST"}));
    EXPECT_EQ(result.events.values("foreign-command", "name"),
              QStringList({"CHECKFORUPDATES", "RELEASENOTES"}));
    EXPECT_EQ(result.events.count("url-opened"), 0);
    EXPECT_EQ(commandsAt(result, 0),
              QStringList({"CHECKFORUPDATES", "RELEASENOTES", "Home", "Community", "VIEWCAST"}));
}
} // namespace
