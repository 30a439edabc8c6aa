// "VIEWCAST" end to end: quillon-host with the module, on a private session bus where the
// reference viewer is installed for chosen versions, publishing drawings made by ezdxf. What
// the viewer was asked shows as viewer-call events, the task pane's notice as a companion-call,
// the copies as files in the test's home.
#include "HostProcess.h"
#include "PrivateSessionBus.h"
#include "TestPrinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <optional>

namespace {
const QString kCurrentVersion = "HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer/Default";

// Runs one of the ezdxf scripts beside this file with the system's Python; its exit code, and
// what it printed in `output`.
int python(const QString& script, const QStringList& arguments, QString* output = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("/usr/bin/python3",
                  QStringList{EC_SOURCE_DIR "/tests/publish/" + script} + arguments);
    const bool finished = process.waitForFinished(120000);
    if (output)
        *output = QString::fromUtf8(process.readAll());
    return finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

// A file's mode in octal, as chmod takes it ("755"); "none" when it cannot be read.
QString modeOf(const QString& path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return QStringLiteral("none");
    return QString::number(status.st_mode & 07777, 8);
}

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

class PublishToViewcast : public ::testing::Test
{
protected:
    // The drawings of make-drawings.py, made once for all tests.
    static void SetUpTestSuite()
    {
        s_drawings = new QTemporaryDir;
        QString output;
        ASSERT_EQ(python("make-drawings.py", {s_drawings->path()}, &output), 0)
            << output.toStdString();
        ASSERT_EQ(::mkfifo(qPrintable(s_drawings->filePath("tree/pipe.dxf")), 0600), 0);
    }

    static void TearDownTestSuite()
    {
        delete s_drawings;
        s_drawings = nullptr;
    }

    PublishToViewcast() : m_bus(m_host.home() + "/bus")
    {
        m_host.setLauncher(m_bus.launcher());
        // Only the module's own conversion may change the names in a script (read as UTF-8).
        m_host.setEnvironment("LC_ALL", "C.UTF-8");
    }

    static QString drawing(const QString& name) { return s_drawings->filePath(name); }
    QString registryFile() const { return m_host.home() + "/registry.ini"; }
    QString scratch(const QString& name = QString()) const
    {
        return m_host.home() + "/temp_tarn" + (name.isEmpty() ? QString() : '/' + name);
    }

    // Installs the reference viewer's servers for `versions` (and only them) on the test's bus;
    // the registry names the newest of them.
    void installViewer(const QList<int>& versions)
    {
        QDir(m_bus.serviceFolder()).removeRecursively();
        QDir().mkpath(m_bus.serviceFolder());
        QStringList arguments{"--install", m_bus.serviceFolder(), "--registry", registryFile()};
        for (int version : versions)
            arguments << "--version" << QString::number(version);
        ASSERT_EQ(QProcess::execute(HostProcess::stageFolder() + "/vcst-viewer", arguments), 0);
    }

    // Installs the server of viewer `version` as the Python script beside this file, which is
    // given the bus name; the registry names it the current version when it is the newest.
    void installFakeViewer(int version, const char* script)
    {
        const QString name = QString("com.corvane.VcModelViewer.VcstViewer.v%1").arg(version);
        writeFile(m_bus.serviceFolder() + '/' + name + ".service",
                  QString("[D-BUS Service]\nName=%1\nExec=/usr/bin/python3 %2/%3 %1\n")
                      .arg(name, EC_SOURCE_DIR "/tests/publish", QLatin1String(script))
                      .toUtf8());
        QSettings registry(registryFile(), QSettings::IniFormat);
        const QString current = registry.value(kCurrentVersion).toString();
        if (current.section('.', -1).toInt() < version)
            registry.setValue(kCurrentVersion, QString("VcModelViewer.VcstViewer.%1").arg(version));
    }

    // Runs the host with the module: each drawing opened and published in turn.
    HostResult publish(const QStringList& paths)
    {
        QString script;
        for (const QString& path : paths)
            script += QString("open \"%1\"\nVIEWCAST\nwait-events\n").arg(path);
        writeFile(m_host.home() + "/publish.qs", script.toUtf8());
        HostResult result =
            m_host.run({m_host.home() + "/publish.qs", "--registry", registryFile()});
        EXPECT_EQ(result.exitCode, 0) << result.standardError.toStdString();
        EXPECT_EQ(result.events.timeline({"command-ended result"}),
                  QVector<QString>(paths.size(), "command-ended 5100").toList());
        return result;
    }

    // The arguments of each call to the viewer ("server call result path viewerName").
    static QStringList viewerCalls(const HostResult& result)
    {
        QStringList calls;
        for (const RecordedEvent& call : result.events.named("viewer-call")) {
            const QJsonArray args = call.fields["args"].toArray();
            EXPECT_EQ(args, (QJsonArray{args[0], args[1], "", "", true, true}));
            calls << QStringList{call.field("server"), call.field("call"), call.field("result"),
                                 args[0].toString(), args[1].toString()}
                         .join(' ');
        }
        return calls;
    }

    // What the module asked of the task pane, and its own error boxes.
    static QStringList taskPaneAndErrors(const HostResult& result)
    {
        QStringList seen;
        for (const RecordedEvent& event : result.events.all()) {
            if (event.name == "companion-call" && event.field("library") == "TarnTaskPane")
                seen << event.field("call");
            if (event.name == "message-box" && event.field("caption") == "Error")
                seen << event.field("text");
        }
        return seen;
    }

    static QTemporaryDir* s_drawings;
    HostProcess m_host;
    PrivateSessionBus m_bus;
};

QTemporaryDir* PublishToViewcast::s_drawings = nullptr;

struct ViewerVersionCase
{
    const char* name;
    QList<int> installed;
    std::optional<QString> current; // the installer's value when not given
    QString call;                   // the server and its call; empty: the task pane's notice
};

// How failures and CTest name the case.
void PrintTo(const ViewerVersionCase& each, std::ostream* out)
{
    *out << each.name;
}

class PublishToViewcastVersion : public PublishToViewcast,
                                 public ::testing::WithParamInterface<ViewerVersionCase>
{};

TEST_P(PublishToViewcastVersion, NewestCreatableUpToTheCurrentOneOpensTheCopyOrTheTaskPaneTells)
{
    const ViewerVersionCase& each = GetParam();
    installViewer(each.installed);
    QSettings registry(registryFile(), QSettings::IniFormat);
    if (each.current && each.current->isEmpty())
        registry.remove(kCurrentVersion);
    else if (each.current)
        registry.setValue(kCurrentVersion, *each.current);
    registry.sync();

    const HostResult result = publish({drawing("site/plan.dxf")});
    if (each.call.isEmpty()) {
        EXPECT_TRUE(viewerCalls(result).isEmpty());
        EXPECT_EQ(taskPaneAndErrors(result), QStringList{"showViewcastMeassage"});
        EXPECT_FALSE(QFileInfo::exists(scratch())) << "nothing is saved without a viewer";
    } else {
        EXPECT_EQ(viewerCalls(result),
                  QStringList{each.call + " opened " + scratch("plan.dxf") + " plan.vcst"});
        EXPECT_TRUE(taskPaneAndErrors(result).isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Installations, PublishToViewcastVersion,
    ::testing::Values(
        ViewerVersionCase{"NotNewerThanTheCurrent",
                          {10, 11},
                          "VcModelViewer.VcstViewer.10",
                          "VcModelViewer.VcstViewer.10 IDispatch::Invoke(53)"},
        ViewerVersionCase{"NewestOfNineAndTen",
                          {9, 10},
                          "VcModelViewer.VcstViewer.12",
                          "VcModelViewer.VcstViewer.10 IDispatch::Invoke(53)"},
        ViewerVersionCase{"NewestOfTenAndEleven",
                          {10, 11},
                          "VcModelViewer.VcstViewer.12",
                          "VcModelViewer.VcstViewer.11 IDispatch::Invoke(53)"},
        ViewerVersionCase{"AsTheInstallerLeftIt",
                          {9},
                          {},
                          "VcModelViewer.VcstViewer.9 IVcModelViewApp::OpenDocument"},
        ViewerVersionCase{"NoCurrentVersion", {9}, QString(), ""},
        ViewerVersionCase{"CurrentWithoutVersion", {9}, "VcModelViewer", ""},
        ViewerVersionCase{"CurrentNotANumber", {9}, "VcModelViewer.VcstViewer.abc", ""},
        ViewerVersionCase{"CurrentBelowTheInstalled", {9}, "VcModelViewer.VcstViewer.8", ""}));

// Servers that take their bus names and never answer: each call gives up after its bounded wait,
// and the user gets the notice, as when no viewer is installed (with D-Bus's own 25 s per call
// the four versions would outlast the run's limit).
TEST_F(PublishToViewcast, ViewersThatNeverAnswerEndInTheTaskPanesNotice)
{
    for (int version = 9; version <= 12; ++version)
        installFakeViewer(version, "black-hole.py");

    const HostResult result = publish({drawing("site/plan.dxf")});
    EXPECT_TRUE(viewerCalls(result).isEmpty());
    EXPECT_EQ(taskPaneAndErrors(result), QStringList{"showViewcastMeassage"});
}

// A version 9 viewer is opened through its own interface, which is looked for first: a server
// that can be created but whose application lacks that interface gets no call, and the user
// gets the notice about the viewer.
TEST_F(PublishToViewcast, AVersionNineViewerWithoutItsInterfaceEndsInTheTaskPanesNotice)
{
    installFakeViewer(9, "faceless-viewer.py");

    const HostResult result = publish({drawing("site/plan.dxf")});
    EXPECT_TRUE(viewerCalls(result).isEmpty());
    EXPECT_EQ(taskPaneAndErrors(result), QStringList{"showViewcastMeassage"});
    EXPECT_EQ(result.events.values("file-written", "path"), QStringList{scratch("plan.dxf")})
        << "the copy is made before the viewer is asked";
}

// Kept: docs/lifecycle.md, rows "Scratch folder" and "Viewer arguments".
TEST_F(PublishToViewcast, CopiesGoIntoTheScratchFolderLosslesslyOnceEachAndOverwritingNothing)
{
    installViewer({10});
    // A drawing in a folder of its own; a scratch folder left with files by an earlier run, in
    // a mode that a folder the module makes never has.
    const QString elsewhere = m_host.home() + "/projects/2024 north/plan.dxf";
    writeFile(elsewhere, contentOf(drawing("site/plan.dxf")));
    writeFile(scratch("earlier.txt"), "from a run before");
    writeFile(scratch("c.dxf"), "kept from before");
    const QFile::Permissions marked =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(scratch(), marked));

    const HostResult result = publish(
        {elsewhere, drawing("tree/main.dxf"), drawing("site/café.dxf"), drawing("site/平面.dxf")});
    EXPECT_EQ(QFileInfo(scratch()).permissions() & 0x7077, marked) << "the folder was replaced";
    EXPECT_EQ(result.events.values("file-written", "path"),
              QStringList({scratch("plan.dxf"), scratch("main.dxf"), scratch("café.dxf"),
                           scratch("平面.dxf")}));
    QString check;
    EXPECT_EQ(python("check-drawing.py", {scratch("plan.dxf"), elsewhere}, &check), 0)
        << check.toStdString();
    // The tree of make-drawings.py: what is missing, a pipe or a device is left out; of two
    // b.dxf, the one reached first is kept; absolute, relative and backslashed paths are all
    // followed.
    EXPECT_EQ(QDir(scratch()).entryList(QDir::Files | QDir::System, QDir::Name),
              QStringList({"a.dxf", "b.dxf", "c.dxf", "café.dxf", "e.dxf", "earlier.txt", "f.dxf",
                           "main.dxf", "plan.dxf", "平面.dxf", "部品 ß.dxf"}));
    for (const char* copied :
         {"parts/a.dxf", "shared/b.dxf", "far/e.dxf", "side/f.dxf", "parts/部品 ß.dxf"})
        EXPECT_EQ(contentOf(scratch(QFileInfo(copied).fileName())),
                  contentOf(drawing(QString("tree/") + copied)))
            << copied;
    EXPECT_EQ(contentOf(scratch("main.dxf")), contentOf(drawing("tree/main.dxf")));
    EXPECT_EQ(contentOf(scratch("c.dxf")), QByteArray("kept from before"));
    EXPECT_EQ(contentOf(scratch("earlier.txt")), QByteArray("from a run before"));
    // The viewer gets 8-bit text: a character beyond Latin-1 arrives as "?".
    const QString server = "VcModelViewer.VcstViewer.10 IDispatch::Invoke(53) ";
    EXPECT_EQ(viewerCalls(result),
              QStringList({server + "opened " + scratch("plan.dxf") + " plan.vcst",
                           server + "opened " + scratch("main.dxf") + " main.vcst",
                           server + "opened " + scratch("café.dxf") + " café.vcst",
                           server + "no such file: " + scratch("??.dxf") + " " + scratch("??.dxf") +
                               " ??.vcst"}));
}

// Drawings on another file system than the user's home (a network share, a memory stick) are
// copied all the same, whole: the system cannot copy between them in the kernel, and the module
// copies block by block instead. /dev/shm stands for that other file system here.
TEST_F(PublishToViewcast, ReferencesOnAnotherFileSystemAreCopiedWhole)
{
    struct stat shared = {}, home = {};
    if (::stat("/dev/shm", &shared) != 0 || ::stat(qPrintable(m_host.home()), &home) != 0 ||
        shared.st_dev == home.st_dev)
        GTEST_SKIP() << "no file system apart from the test's home at /dev/shm";
    QTemporaryDir other("/dev/shm/PublishTest-XXXXXX");
    ASSERT_TRUE(other.isValid());
    QString output;
    ASSERT_EQ(python("make-drawings.py", {other.path()}, &output), 0) << output.toStdString();
    installViewer({10});

    publish({other.filePath("tree/main.dxf")});
    for (const char* copied :
         {"parts/a.dxf", "shared/b.dxf", "c.dxf", "far/e.dxf", "side/f.dxf", "parts/部品 ß.dxf"})
        EXPECT_EQ(contentOf(scratch(QFileInfo(copied).fileName())),
                  contentOf(other.filePath(QString("tree/") + copied)))
            << copied;
    EXPECT_EQ(QFileInfo(scratch("a.dxf")).permissions(),
              QFileInfo(other.filePath("tree/parts/a.dxf")).permissions());
}

// What is published is the active document's drawing, not the one opened last; with no document
// open there is nothing to save, which the error box tells.
TEST_F(PublishToViewcast, TheActiveDocumentIsPublishedAndWithoutOneTheErrorBoxShows)
{
    installViewer({10});
    writeFile(m_host.home() + "/active.qs",
              QString("VIEWCAST\nopen \"%1\"\nopen \"%2\"\nactivate 1\nVIEWCAST\nwait-events\n")
                  .arg(drawing("site/plan.dxf"), drawing("tree/main.dxf"))
                  .toUtf8());
    const HostResult result =
        m_host.run({m_host.home() + "/active.qs", "--registry", registryFile()});
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100"}));
    EXPECT_EQ(taskPaneAndErrors(result), QStringList{"Can not publish this document to Viewcast"});
    EXPECT_EQ(result.events.values("file-written", "path"), QStringList{scratch("plan.dxf")});
    EXPECT_EQ(viewerCalls(result),
              QStringList{"VcModelViewer.VcstViewer.10 IDispatch::Invoke(53) opened " +
                          scratch("plan.dxf") + " plan.vcst"});
}

// An empty scratch folder that a run before left behind goes and is made anew, so that it has
// what the user's new folders get, not the mode it was left with; one that still holds files
// stays as it is (above).
// Kept: docs/lifecycle.md, row "Scratch folder".
TEST_F(PublishToViewcast, AnEmptyScratchFolderFromBeforeIsMadeAnewWithTheUsersDefaultMode)
{
    installViewer({10});
    // The host starts with this process's file mode mask, so it makes its folders like this one.
    const QString fresh = m_host.home() + "/fresh";
    ASSERT_TRUE(QDir().mkdir(fresh));
    const QString usual = modeOf(fresh);
    ASSERT_TRUE(QDir().mkdir(scratch()));
    ASSERT_EQ(::chmod(QFile::encodeName(scratch()).constData(), 0701), 0);
    ASSERT_NE(modeOf(scratch()), usual);

    publish({drawing("site/plan.dxf")});
    EXPECT_EQ(modeOf(scratch()), usual);
    EXPECT_EQ(QDir(scratch()).entryList(QDir::Files), QStringList{"plan.dxf"});
}

TEST_F(PublishToViewcast, DrawingNeverSavedOrScratchFolderNotWritableShowsTheErrorBox)
{
    installViewer({10});
    const auto expectErrorBoxOnly = [this](const QString& path) {
        const HostResult result = publish({path});
        EXPECT_EQ(taskPaneAndErrors(result),
                  QStringList{"Can not publish this document to Viewcast"});
        EXPECT_TRUE(viewerCalls(result).isEmpty());
        EXPECT_EQ(result.events.count("file-written"), 0);
    };
    writeFile(m_host.home() + "/notes.txt", "not a drawing\n");
    expectErrorBoxOnly(m_host.home() + "/notes.txt");
    QDir(scratch()).removeRecursively();
    writeFile(scratch(), "a file where the scratch folder should be");
    expectErrorBoxOnly(drawing("site/plan.dxf"));
    EXPECT_EQ(contentOf(scratch()), QByteArray("a file where the scratch folder should be"));
}
} // namespace
