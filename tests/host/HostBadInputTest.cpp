// What quillon-host does with a script or a command line it cannot carry out: a clear message,
// a non-zero exit, and a session that still ends properly.
#include "HostProcess.h"
#include "TestPrinters.h"

#include <QFile>

#include <gtest/gtest.h>

class HostBadInput : public ::testing::Test
{
protected:
    HostProcess host;
};

namespace {
struct BadScript
{
    const char* name;
    const char* script;
    const char* message;
    QStringList eventsBeforeTheError;
};

// How failures and CTest name the case.
void PrintTo(const BadScript& each, std::ostream* out)
{
    *out << each.name;
}
} // namespace

class HostBadStatement : public HostBadInput, public ::testing::WithParamInterface<BadScript>
{};

TEST_P(HostBadStatement, EndsTheScriptButNotTheSession)
{
    const BadScript& bad = GetParam();
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

INSTANTIATE_TEST_SUITE_P(
    Statements, HostBadStatement,
    ::testing::Values(
        BadScript{
            "UnclosedQuote", "Home\nopen \"plan.dxf", "line 2: a double quote is not closed", {}},
        BadScript{"NotADocumentNumber",
                  "Home\nactivate x",
                  "line 2 (activate x): 'x' is not a document number (1, 2, ...)",
                  {"command-ended"}},
        BadScript{"MissingDrawing",
                  "open missing.dxf",
                  "line 1 (open missing.dxf): cannot open %HOME%/missing.dxf: no such file",
                  {}},
        BadScript{"UnloadOfAModuleNotLoaded",
                  "unload ProbeModule",
                  "line 1 (unload ProbeModule): module ProbeModule is not loaded",
                  {}}));

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

TEST_F(HostBadInput, ACompanionFolderThatNoSearchPathCanNameStopsBeforeAnythingStarts)
{
    const HostResult result = host.run({"--companion-path", "a:b", "-c", "Home"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.events.all().isEmpty());
    EXPECT_TRUE(result.standardError.startsWith(
        "quillon-host: the companion folder " + host.home() +
        "/a:b holds ':', which the library search path (LD_LIBRARY_PATH) cannot name\n"
        "Try 'quillon-host --help'.\n"))
        << qPrintable(result.standardError);
}

// A script or a profile that is not text, or too large to be one, is refused before anything of
// it is used, with the file and the reason named: none of its statements runs. FILE in the
// arguments stands for the case's file, written into the test's home.
namespace {
struct NotText
{
    const char* name;
    const char* file; // written into the test's home; none for a device
    QByteArray content;
    qint64 size; // when larger than the content: the file is made sparse to this size
    QStringList arguments;
    const char* message;
};

// How failures and CTest name the case.
void PrintTo(const NotText& each, std::ostream* out)
{
    *out << each.name;
}
} // namespace

class HostRefusesInput : public HostBadInput, public ::testing::WithParamInterface<NotText>
{
protected:
    QString write(const NotText& input)
    {
        QFile file(host.home() + '/' + input.file);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(input.content);
        if (input.size > input.content.size()) {
            EXPECT_TRUE(file.resize(input.size)); // sparse: nothing of it is written
        }
        return file.fileName();
    }
};

TEST_P(HostRefusesInput, ThatIsNotUtf8TextOrTooLarge)
{
    const NotText& input = GetParam();
    const QString file = input.file ? write(input) : QString();
    QStringList arguments = input.arguments;
    arguments.replaceInStrings("FILE", file);
    const HostResult result = host.run(arguments);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.events.values("error", "message"),
              QStringList{QString::fromUtf8(input.message).replace("FILE", file)});
    EXPECT_EQ(result.events.count("command-ended"), 0);
}

INSTANTIATE_TEST_SUITE_P(
    ScriptsAndProfiles, HostRefusesInput,
    ::testing::Values(
        NotText{"ScriptWithNul",
                "nul.qs",
                QByteArray("Home\n\0\nHome\n", 12),
                0,
                {"FILE"},
                "cannot read script FILE: it holds a NUL byte (at byte 5), so it is not text"},
        NotText{"Utf16Script",
                "utf16.qs",
                QByteArray("\xff\xfeH\0o\0m\0e\0\n\0", 12),
                0,
                {"FILE"},
                "cannot read script FILE: it holds a NUL byte (at byte 3), so it is not text"},
        NotText{"Latin1Script",
                "latin1.qs",
                "Home # caf\xe9\nHome\n",
                0,
                {"FILE"},
                "cannot read script FILE: it is not UTF-8 text"},
        NotText{"HugeScript",
                "huge.qs",
                "Home\n",
                (64 << 20) + 1,
                {"FILE"},
                "cannot read script FILE: it is larger than 67108864 bytes"},
        NotText{"DeviceAsScript",
                nullptr,
                QByteArray(),
                0,
                {"/dev/zero"},
                "cannot read script /dev/zero: it holds a NUL byte (at byte 0), so it is not "
                "text"},
        NotText{"DeviceAsProfile",
                nullptr,
                QByteArray(),
                0,
                {"--ui-profile", "/dev/zero", "-c", "Home"},
                "UI profile /dev/zero: cannot be read: it holds a NUL byte (at byte 0), so it is "
                "not text"},
        NotText{"ProfileWithNul",
                "nul.json",
                QByteArray("{}\0", 3),
                0,
                {"--ui-profile", "FILE", "-c", "Home"},
                "UI profile FILE: cannot be read: it holds a NUL byte (at byte 2), so it is not "
                "text"}));
