// What quillon-host does with a script or a command line it cannot carry out: a clear message,
// a non-zero exit, and a session that still ends properly.
#include "HostProcess.h"

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
