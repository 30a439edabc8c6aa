// What quillon-host does with a script or a command line it cannot carry out: a clear message,
// a non-zero exit, and a session that still ends properly.
#include "HostProcess.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {
struct BadScript
{
    const char* script;
    const char* message;
    QStringList eventsBeforeTheError;
};
} // namespace

class HostBadInput : public ::testing::Test
{
protected:
    HostProcess host;
};

TEST_F(HostBadInput, AStatementThatCannotBeCarriedOutEndsTheScriptButNotTheSession)
{
    const BadScript cases[] = {
        {"Home\nopen \"plan.dxf", "line 2: a double quote is not closed", {}},
        {"Home\nactivate x",
         "line 2 (activate x): 'x' is not a document number (1, 2, ...)",
         {"command-ended"}},
        {"open missing.dxf",
         "line 1 (open missing.dxf): cannot open %HOME%/missing.dxf: no such file",
         {}},
        {"unload ProbeModule", "line 1 (unload ProbeModule): module ProbeModule is not loaded", {}},
    };
    for (const BadScript& bad : cases) {
        SCOPED_TRACE(bad.script);
        const HostResult result = host.runScript(bad.script);
        const QString message = QString::fromUtf8(bad.message).replace("%HOME%", host.home());
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.events.values("error", "message"), QStringList({message}));
        EXPECT_TRUE(result.standardError.startsWith("quillon-host: " + message + '\n'))
            << qPrintable(result.standardError);
        // What ran before the error is there, and the module is still stopped and unloaded.
        EXPECT_EQ(result.events.describe({"command-ended", "error", "module-unloaded"}),
                  bad.eventsBeforeTheError + QStringList({"error", "module-unloaded"}));
        EXPECT_EQ(result.events.count("command-removed"), 3);
    }
}

TEST_F(HostBadInput, AMissingScriptOrStartModuleIsReportedAndNothingRuns)
{
    const HostResult noScript = host.run({"missing.qs"});
    EXPECT_EQ(noScript.exitCode, 1);
    EXPECT_EQ(noScript.events.describe({"module-loaded", "error", "module-unloaded"}),
              QStringList({"module-loaded", "error", "module-unloaded"}));
    EXPECT_EQ(noScript.events.values("error", "message"),
              QStringList({"cannot read script missing.qs: No such file or directory"}));

    const HostResult noModule = host.runScript("Home", {"--module", "Nowhere"});
    EXPECT_EQ(noModule.exitCode, 1);
    EXPECT_EQ(noModule.events.names(), QStringList({"error"}));
    EXPECT_EQ(noModule.events.values("error", "message"),
              QStringList({"module Nowhere not found (looked for Nowhere.tx in: " +
                           HostProcess::stageFolder() + ")"}));
}

TEST_F(HostBadInput, AnUnknownOptionStopsBeforeAnythingStarts)
{
    const HostResult result = host.run({"--frobnicate", "-c", "Home"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.events.all().isEmpty());
    EXPECT_TRUE(result.standardError.startsWith(
        "quillon-host: Unknown option 'frobnicate'.\nTry 'quillon-host --help'.\n"))
        << qPrintable(result.standardError);
}

// A script or a profile that is not text, or too large to be one, is refused before anything of
// it is used, with the file and the reason named: none of its statements runs.
TEST_F(HostBadInput, AScriptOrProfileThatIsNotUtf8TextOrTooLargeIsRefused)
{
    const auto write = [this](const QString& name, const QByteArray& content, qint64 size = 0) {
        QFile file(host.home() + '/' + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        if (size > 0)
            EXPECT_TRUE(file.resize(size)); // sparse: nothing of it is written
        return file.fileName();
    };
    const QString nul = write("nul.qs", QByteArray("Home\n\0\nHome\n", 12));
    const QString utf16 = write("utf16.qs", QByteArray("\xff\xfeH\0o\0m\0e\0\n\0", 12));
    const QString latin1 = write("latin1.qs", "Home # caf\xe9\nHome\n");
    const QString huge = write("huge.qs", "Home\n", (64 << 20) + 1);
    const QString profile = write("nul.json", QByteArray("{}\0", 3));
    const struct
    {
        QStringList arguments;
        QString message;
    } cases[] = {
        {{nul},
         "cannot read script " + nul + ": it holds a NUL byte (at byte 5), so it is not text"},
        {{utf16},
         "cannot read script " + utf16 + ": it holds a NUL byte (at byte 3), so it is not text"},
        {{latin1}, "cannot read script " + latin1 + ": it is not UTF-8 text"},
        {{huge}, "cannot read script " + huge + ": it is larger than 67108864 bytes"},
        {{"/dev/zero"},
         "cannot read script /dev/zero: it holds a NUL byte (at byte 0), so it is not text"},
        {{"--ui-profile", "/dev/zero", "-c", "Home"},
         "UI profile /dev/zero: cannot be read: it holds a NUL byte (at byte 0), so it is not "
         "text"},
        {{"--ui-profile", profile, "-c", "Home"},
         "UI profile " + profile +
             ": cannot be read: it holds a NUL byte (at byte 2), so it is "
             "not text"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.arguments.join(' ').toStdString());
        const HostResult result = host.run(each.arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.events.values("error", "message"), QStringList{each.message});
        EXPECT_EQ(result.events.count("command-ended"), 0);
    }
}
