// What quillon-host does with a script or a command line it cannot carry out: a clear message,
// a non-zero exit, and a session that still ends properly.
#include "HostProcess.h"
#include "TestPrinters.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <sys/stat.h>

class HostBadInput : public ::testing::Test
{
protected:
    // A pipe that nobody writes to, in the test's home: opened for reading or writing, it
    // waits for ever. A host that opens it is killed after `kPatience`, and the case fails.
    QString makePipe(const QString& name)
    {
        const QString path = host.home() + '/' + name;
        EXPECT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        return path;
    }

    static constexpr int kPatience = 30000;
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
    makePipe("pipe");
    const HostResult result = host.run({"-c", bad.script}, kPatience);
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
                  {}},
        // Each path that names no file the host could open as a document says what it is.
        BadScript{
            "FolderAsDocument", "open /", "line 1 (open /): cannot open /: it is a folder", {}},
        BadScript{"NullDeviceAsDocument",
                  "open /dev/null",
                  "line 1 (open /dev/null): cannot open /dev/null: it is a device, not a regular "
                  "file",
                  {}},
        BadScript{"PipeAsDocument",
                  "Home; open pipe",
                  "line 1 (open pipe): cannot open %HOME%/pipe: it is a pipe, not a regular file",
                  {"command-ended"}},
        BadScript{"EmptyPathAsDocument",
                  "open \"\"",
                  "line 1 (open ): cannot open a document: the path is empty",
                  {}},
        BadScript{"SystemFileAsDocument",
                  "open /proc/self/status",
                  "line 1 (open /proc/self/status): cannot open /proc/self/status: it is a file "
                  "that the system makes as it is read (its size shows as 0), not a stored "
                  "drawing",
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

// A script, a profile or a registry file that is not a regular file of text, or too large to be
// one, is refused before anything of it is used, with the file and the reason named: none of
// its statements runs. FILE in the arguments stands for the case's file, made in the test's home.
namespace {
struct NotText
{
    const char* name;
    const char* file; // made in the test's home; none for a device or a folder
    QByteArray content;
    qint64 size; // when larger than the content: the file is made sparse to this size
    QStringList arguments;
    const char* message;
    bool pipe = false; // the file is a pipe that nobody writes to
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
        if (input.pipe)
            return makePipe(input.file);
        QFile file(host.home() + '/' + input.file);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(input.content);
        if (input.size > input.content.size()) {
            EXPECT_TRUE(file.resize(input.size)); // sparse: nothing of it is written
        }
        return file.fileName();
    }
};

TEST_P(HostRefusesInput, ThatIsNotARegularFileOfUtf8Text)
{
    const NotText& input = GetParam();
    const QString file = input.file ? write(input) : QString();
    QStringList arguments = input.arguments;
    arguments.replaceInStrings("FILE", file);
    const HostResult result = host.run(arguments, kPatience);
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
                "cannot read script /dev/zero: it is a device, not a regular file"},
        NotText{"PipeAsScript",
                "script.pipe",
                QByteArray(),
                0,
                {"FILE"},
                "cannot read script FILE: it is a pipe, not a regular file",
                true},
        NotText{"FolderAsScript",
                nullptr,
                QByteArray(),
                0,
                {"/"},
                "cannot read script /: it is a folder"},
        NotText{"DeviceAsProfile",
                nullptr,
                QByteArray(),
                0,
                {"--ui-profile", "/dev/zero", "-c", "Home"},
                "UI profile /dev/zero: cannot be read: it is a device, not a regular file"},
        NotText{"PipeAsProfile",
                "profile.pipe",
                QByteArray(),
                0,
                {"--ui-profile", "FILE", "-c", "Home"},
                "UI profile FILE: cannot be read: it is a pipe, not a regular file",
                true},
        NotText{"ProfileWithNul",
                "nul.json",
                QByteArray("{}\0", 3),
                0,
                {"--ui-profile", "FILE", "-c", "Home"},
                "UI profile FILE: cannot be read: it holds a NUL byte (at byte 2), so it is not "
                "text"},
        NotText{"DeviceAsRegistry",
                nullptr,
                QByteArray(),
                0,
                {"--registry", "/dev/zero", "-c", "Home"},
                "registry /dev/zero: cannot be read: it is a device, not a regular file"},
        NotText{"PipeAsRegistry",
                "registry.pipe",
                QByteArray(),
                0,
                {"--registry", "FILE", "-c", "Home"},
                "registry FILE: cannot be read: it is a pipe, not a regular file",
                true},
        NotText{"FolderAsRegistry",
                nullptr,
                QByteArray(),
                0,
                {"--registry", "/", "-c", "Home"},
                "registry /: cannot be read: it is a folder"},
        NotText{"RegistryWithNul",
                "nul.ini",
                QByteArray("[HKEY_LOCAL_MACHINE]\n\0", 22),
                0,
                {"--registry", "FILE", "-c", "Home"},
                "registry FILE: cannot be read: it holds a NUL byte (at byte 21), so it is not "
                "text"},
        NotText{"Latin1Registry",
                "latin1.ini",
                "[HKEY_LOCAL_MACHINE]\nSOFTWARE\\Corvane\\Owner=caf\xe9\n",
                0,
                {"--registry", "FILE", "-c", "Home"},
                "registry FILE: cannot be read: it is not UTF-8 text"}));

TEST_F(HostBadInput, APictureIsWrittenOnlyToARegularFile)
{
    makePipe("pipe");
    const struct
    {
        const char* path;
        QString message;
    } cases[] = {
        {"pipe", "line 2 (screenshot pipe): cannot write " + host.home() +
                     "/pipe: it is a pipe, not a regular file"},
        {"/", "line 2 (screenshot /): cannot write /: it is a folder"},
        {"\"\"", "line 2 (screenshot ): cannot write a picture: the path is empty"},
    };
    for (const auto& each : cases) {
        const HostResult result = host.run(
            {"--no-module", "-c",
             QStringLiteral("mainframe create\nscreenshot %1").arg(QLatin1String(each.path))},
            kPatience);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.events.values("error", "message"), QStringList({each.message}));
        EXPECT_EQ(result.events.count("file-written"), 0);
    }
}

TEST_F(HostBadInput, ARegistryFileNotMadeYetReadsAsEmpty)
{
    const HostResult result = host.runScript("Home", {"--registry", "later/registry.ini"});
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.standardError);
    EXPECT_EQ(result.events.count("error"), 0);
    EXPECT_EQ(result.events.count("command-ended"), 1);
}

// However long the input, an error message quotes at most 200 characters of each statement,
// word, path or identifier, followed by the length of what it left out.
namespace {
QString quoted(const QString& text)
{
    return text.left(200) + QStringLiteral("... (%1 characters)").arg(text.size());
}

// The message of a run that failed: its error event, or for a command line that could not be
// read, the first line of standard error.
QString messageOf(const HostResult& result)
{
    const QStringList errors = result.events.values("error", "message");
    if (!errors.isEmpty())
        return errors.join('\n');
    return result.standardError.section('\n', 0, 0).remove(QRegularExpression("^quillon-host: "));
}
} // namespace

TEST_F(HostBadInput, AnErrorQuotesAFewHundredCharactersOfALongInput)
{
    const QString word(1000000, 'x');
    const QString argument(100000, 'y'); // one argument of a command line holds 128 KiB at most
    QFile script(host.home() + "/long.qs");
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("activate " + word.toUtf8() + "\nload " + word.toUtf8() + "\nopen " +
                 word.toUtf8() + "\n");
    script.close();
    QFile profile(host.home() + "/long.json");
    ASSERT_TRUE(profile.open(QIODevice::WriteOnly));
    profile.write("{\"" + word.toUtf8() + "\": 1}");
    profile.close();

    const QString stage = HostProcess::stageFolder();
    const struct
    {
        QStringList arguments;
        int exitCode;
        QString message;
    } cases[] = {
        {{"--no-module", "long.qs"},
         1,
         "line 1 (" + quoted("activate " + word) + "): '" + quoted(word) +
             "' is not a document number (1, 2, ...)"},
        {{"--no-module", "-c", "load " + argument},
         1,
         "line 1 (" + quoted("load " + argument) + "): module " + quoted(argument) +
             " not found (looked for " + quoted(argument) + ".tx in: " + stage + ")"},
        {{"--no-module", "-c", "unload " + argument},
         1,
         "line 1 (" + quoted("unload " + argument) + "): module " + quoted(argument) +
             " is not loaded"},
        {{"--no-module", "-c", "open " + argument},
         1,
         "line 1 (" + quoted("open " + argument) + "): cannot open " +
             quoted(host.home() + '/' + argument) + ": no such file"},
        {{"--no-module", "--ui-profile", "long.json", "-c", "commands"},
         1,
         "UI profile long.json: /: unknown field '" + quoted(word) +
             "' (expected one of: groups, workspaces, ribbonSystemMenu)"},
        {{"--language", argument},
         2,
         "--language takes a whole number, not '" + quoted(argument) + "'"},
        {{"--" + argument}, 2, "Unknown option '" + quoted(argument) + "'."},
    };
    for (const auto& each : cases) {
        const HostResult result = host.run(each.arguments);
        const QString message = messageOf(result);
        SCOPED_TRACE(qPrintable(each.arguments.join(' ').left(60)));
        EXPECT_EQ(result.exitCode, each.exitCode);
        // A failure shows the start of a message too long to print whole.
        if (message.size() >= 1000) {
            ADD_FAILURE() << "a message of " << message.size()
                          << " characters: " << qPrintable(message.left(300));
            continue;
        }
        EXPECT_EQ(message, each.message);
    }
}
