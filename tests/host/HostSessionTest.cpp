// quillon-host run as a user runs it, read through its events: the module's whole life in a
// session, the crash-report checks across sessions, output modes and where paths lead.
#include "HostProcess.h"
#include "TestPrinters.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {
void writeFile(const QString& path, const QByteArray& content = {})
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    file.write(content);
}

QStringList openedPaths(const HostResult& result)
{
    return result.events.values("document-opened", "path");
}
} // namespace

class HostSession : public ::testing::Test
{
protected:
    void SetUp() override { writeFile(host.home() + "/plan.dxf"); }

    HostProcess host;
};

TEST_F(HostSession, ShowsTheModulesWholeLifeAsEvents)
{
    const HostResult result = host.runScript("commands\nmainframe create\nHome\n_Community\n"
                                             "TUTORIAL\nmainframes create\nopen plan.dxf\n"
                                             "open plan.dxf\nactivate 1\nclose 2\n"
                                             "mainframe destroy");
    ASSERT_EQ(result.exitCode, 0) << qPrintable(result.standardError);
    const QStringList wanted{
        "module-loaded module",  "module-unloaded module", "reactor-added kind",
        "reactor-removed kind",  "command-added name",     "command-removed name",
        "commands names",        "command-ended name",     "unknown-command name",
        "companion-call call",   "document-opened index",  "document-activated index",
        "document-closed index", "mainframe-created",      "mainframe-destroyed"};
    EXPECT_EQ(result.events.timeline(wanted),
              QString("module-loaded ExtCommands|reactor-added editor|command-added _Home|"
                      "command-added _Community|command-added _VIEWCAST|"
                      "companion-call getRegVersion|reactor-added document-manager|"
                      R"(commands ["Home","Community","VIEWCAST"]|mainframe-created|)"
                      "companion-call addiQuestionView|module-loaded QNTForgeportConnector|"
                      "companion-call addXmlTodxf|"
                      "command-added _RELEASENOTES|command-added _CHECKFORUPDATES|"
                      "companion-call addTaskPane|companion-call showTaskPane|"
                      "command-ended Home|companion-call showiQuestionView|"
                      "command-ended _Community|unknown-command TUTORIAL|"
                      "unknown-command mainframes|document-opened 1|document-activated 1|"
                      "companion-call initialCheckOnInstall|companion-call setRegVersion|"
                      "reactor-removed document-manager|document-opened 2|"
                      "document-activated 2|document-activated 1|document-closed 2|"
                      "mainframe-destroyed|command-removed _CHECKFORUPDATES|"
                      "command-removed _RELEASENOTES|companion-call removeXmlTodxf|"
                      "reactor-removed editor|command-removed _Home|"
                      "command-removed _Community|command-removed _VIEWCAST|"
                      "module-unloaded ExtCommands|module-unloaded QNTForgeportConnector")
                  .split('|'));
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100"}));
    // The only call with arguments, setRegVersion, records the running version.
    EXPECT_TRUE(result.events.timeline({"companion-call args"})
                    .contains(R"(companion-call ["2026.0.4120"])"));

    // The next session of the same version in the same home takes the reminder, and the
    // companion asks the user about the crash reports waiting by then.
    const QString reports = host.folders().dataHome() + "/Corvane/Quillon/CrashReports";
    ASSERT_TRUE(QDir().mkpath(reports));
    writeFile(reports + "/b.dmp");
    writeFile(reports + "/a.dmp");
    writeFile(reports + "/notes.txt");
    const HostResult next = host.runScript("open plan.dxf; open plan.dxf");
    EXPECT_EQ(next.events.values("companion-call", "call"),
              QStringList({"getRegVersion", "reminderCheck"}));
    const QStringList asked = next.events.values("message-box", "text");
    ASSERT_EQ(asked.size(), 1);
    EXPECT_TRUE(asked[0].startsWith("2 crash report(s)")) << qPrintable(asked[0]);
    EXPECT_TRUE(asked[0].endsWith(": a.dmp, b.dmp")) << qPrintable(asked[0]);
}

// Kept: docs/lifecycle.md, row "Help commands".
TEST_F(HostSession, CommandsThatAnUnloadedModuleLeftBehindAreTakenOffTheStack)
{
    // The Help-menu commands stay registered until the main window goes; unloading the module
    // before that must not leave the stack pointing into the unloaded library.
    const HostResult result =
        host.runScript("mainframe create; unload ExtCommands; CHECKFORUPDATES; commands");
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.standardError);
    EXPECT_EQ(result.events.timeline({"command-removed cause", "module-unloaded module",
                                      "unknown-command name", "commands names"}),
              QString("command-removed null|command-removed null|command-removed null|"
                      "command-removed module-unloaded|command-removed module-unloaded|"
                      "module-unloaded ExtCommands|unknown-command CHECKFORUPDATES|commands []|"
                      // Loaded for the main window, the online connector stays until the end.
                      "module-unloaded QNTForgeportConnector")
                  .split('|'));
}

TEST_F(HostSession, ReadableOutputCarriesTheSameEventsAsJson)
{
    // With the main window come events that have no fields.
    const HostResult readable = host.runReadable({"-c", "mainframe create; Home; TUTORIAL"});
    const HostResult json = host.runScript("mainframe create; Home; TUTORIAL");
    QStringList statements;
    QStringList eventNames;
    for (const QString& line : readable.output)
        (line.startsWith("> ") ? statements : eventNames) << line.section(' ', 0, 0);
    EXPECT_EQ(statements, QStringList({">", ">", ">"}));
    EXPECT_EQ(eventNames, json.events.names());
    EXPECT_TRUE(readable.output.contains("> TUTORIAL"));
    EXPECT_TRUE(readable.output.contains("command-ended name=Home result=5100"));
}

TEST_F(HostSession, PathsLeadFromTheScriptsFolderTheCurrentFolderOrTheDemoFolder)
{
    const QString scripts = host.home() + "/scripts";
    ASSERT_TRUE(QDir().mkpath(scripts));
    writeFile(scripts + "/session.qs", "open plan.dxf\n");
    writeFile(scripts + "/plan.dxf");

    EXPECT_EQ(openedPaths(host.run({scripts + "/session.qs"})),
              QStringList({scripts + "/plan.dxf"}));
    EXPECT_EQ(openedPaths(host.runScript("open plan.dxf")),
              QStringList({host.home() + "/plan.dxf"}));

    const HostResult demo = host.run({});
    EXPECT_EQ(demo.exitCode, 0) << qPrintable(demo.standardError);
    const QString demoDrawing = HostProcess::stageFolder() + "/demo/plan.dxf";
    EXPECT_EQ(openedPaths(demo), QStringList({demoDrawing, demoDrawing}));
}
