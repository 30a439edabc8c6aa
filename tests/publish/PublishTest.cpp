// "VIEWCAST" end to end: quillon-host with the module, on a private session bus where the
// reference viewer is installed for chosen versions, publishing drawings made by ezdxf. What
// the viewer was asked shows as viewer-call events, the task pane's notice as a companion-call
// of the test's task pane, the copies as files in the test's home.
#include "DrawingScripts.h"
#include "HostProcess.h"
#include "PrivateSessionBus.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace {
const QString kViewerCall = QStringLiteral("viewer-call");
const QString kDispatch = QStringLiteral("IDispatch::Invoke(53)");
const QString kInterface = QStringLiteral("IVcModelViewApp::OpenDocument");
// The owner's, the group's and the others' permission bits (not the "user" ones, which
// repeat the owner's for the one who asks).
constexpr int kModeBits = 0x7077;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QStringList filesIn(const QString& folder)
{
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    names.sort();
    return names;
}

class PublishToViewcast : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_drawings = new QTemporaryDir;
        DrawingScripts::make(s_drawings->path());
    }

    static void TearDownTestSuite()
    {
        delete s_drawings;
        s_drawings = nullptr;
    }

    PublishToViewcast() : m_bus(m_host.home() + QStringLiteral("/bus"))
    {
        m_host.setLauncher(m_bus.launcher());
    }

    static QString drawing(const QString& name)
    {
        return s_drawings->path() + QLatin1Char('/') + name;
    }

    QString registryFile() const { return m_host.home() + QStringLiteral("/registry.ini"); }
    QString scratch(const QString& name = QString()) const
    {
        return m_host.home() + QStringLiteral("/temp_tarn") +
               (name.isEmpty() ? QString() : QLatin1Char('/') + name);
    }

    // Installs the reference viewer's servers for `versions` on the test's bus; the registry
    // names `current` (by default the newest of them).
    void installViewer(const QList<int>& versions, const QString& current = QString())
    {
        QStringList arguments{QStringLiteral("--install"), m_bus.serviceFolder(),
                              QStringLiteral("--registry"), registryFile()};
        for (int version : versions)
            arguments << QStringLiteral("--version") << QString::number(version);
        if (!current.isEmpty())
            arguments << QStringLiteral("--current") << current;
        QProcess installer;
        installer.setProcessChannelMode(QProcess::MergedChannels);
        installer.start(HostProcess::stageFolder() + QStringLiteral("/vcst-viewer"), arguments);
        ASSERT_TRUE(installer.waitForFinished(60000));
        ASSERT_EQ(installer.exitCode(), 0) << installer.readAll().toStdString();
    }

    // Runs the host: the module loaded, `path` open, the command typed, the events waited for.
    HostResult publish(const QString& path)
    {
        return m_host.runScript(QStringLiteral("open \"%1\"\nVIEWCAST\nwait-events").arg(path),
                                {QStringLiteral("--registry"), registryFile()});
    }

    static QJsonArray openArguments(const QString& copy, const QString& viewerName)
    {
        return {copy, viewerName, QString(), QString(), true, true};
    }

    static void expectFinished(const HostResult& result)
    {
        ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
        EXPECT_EQ(result.events.values(QStringLiteral("command-ended"), QStringLiteral("name")),
                  QStringList{QStringLiteral("VIEWCAST")});
        EXPECT_EQ(result.events.named(QStringLiteral("command-ended"))
                      .value(0)
                      .fields.value(QStringLiteral("result"))
                      .toInt(),
                  5100);
    }

    // What the module asked of the task pane (the other companions of the stage folder, such
    // as the crash-report service, have their own business at start-up).
    static QStringList taskPaneCalls(const HostResult& result)
    {
        QStringList calls;
        for (const RecordedEvent& event : result.events.named(QStringLiteral("companion-call"))) {
            if (event.field(QStringLiteral("library")) == QLatin1String("TarnTaskPane"))
                calls << event.field(QStringLiteral("call"));
        }
        return calls;
    }

    // The module's own error box (the task pane shows its notice in a box of its own).
    static QVector<RecordedEvent> errorBoxes(const HostResult& result)
    {
        QVector<RecordedEvent> boxes;
        for (const RecordedEvent& event : result.events.named(QStringLiteral("message-box"))) {
            if (event.field(QStringLiteral("caption")) == QLatin1String("Error"))
                boxes << event;
        }
        return boxes;
    }

    static void expectNoticeOnly(const HostResult& result)
    {
        EXPECT_EQ(taskPaneCalls(result), QStringList{QStringLiteral("showViewcastMeassage")});
        EXPECT_EQ(result.events.count(kViewerCall), 0);
        EXPECT_TRUE(errorBoxes(result).isEmpty());
    }

    static void expectErrorBoxOnly(const HostResult& result)
    {
        const auto boxes = errorBoxes(result);
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].field(QStringLiteral("text")),
                  QStringLiteral("Can not publish this document to Viewcast"));
        EXPECT_EQ(result.events.count(kViewerCall), 0);
        EXPECT_TRUE(taskPaneCalls(result).isEmpty());
    }

    static QTemporaryDir* s_drawings;
    HostProcess m_host;
    PrivateSessionBus m_bus;
};

QTemporaryDir* PublishToViewcast::s_drawings = nullptr;

TEST_F(PublishToViewcast, NewestCreatableVersionBelowTheCurrentOneIsDrivenByDispatch)
{
    installViewer({9, 10}, QStringLiteral("VcModelViewer.VcstViewer.12"));
    const HostResult result = publish(drawing(QStringLiteral("site/plan.dxf")));
    expectFinished(result);
    const auto calls = result.events.named(kViewerCall);
    ASSERT_EQ(calls.size(), 1) << result.standardError.toStdString();
    EXPECT_EQ(calls[0].field(QStringLiteral("server")),
              QStringLiteral("VcModelViewer.VcstViewer.10"));
    EXPECT_EQ(calls[0].field(QStringLiteral("call")), kDispatch);
    EXPECT_EQ(calls[0].fields.value(QStringLiteral("args")).toArray(),
              openArguments(scratch(QStringLiteral("plan.dxf")), QStringLiteral("plan.vcst")));
    EXPECT_EQ(calls[0].field(QStringLiteral("result")), QStringLiteral("opened"));
    EXPECT_TRUE(taskPaneCalls(result).isEmpty());
}

TEST_F(PublishToViewcast, VersionNineIsDrivenThroughItsOwnInterface)
{
    installViewer({9});
    const HostResult result = publish(drawing(QStringLiteral("site/plan.dxf")));
    expectFinished(result);
    const auto calls = result.events.named(kViewerCall);
    ASSERT_EQ(calls.size(), 1) << result.standardError.toStdString();
    EXPECT_EQ(calls[0].field(QStringLiteral("server")),
              QStringLiteral("VcModelViewer.VcstViewer.9"));
    EXPECT_EQ(calls[0].field(QStringLiteral("call")), kInterface);
    EXPECT_EQ(calls[0].fields.value(QStringLiteral("args")).toArray(),
              openArguments(scratch(QStringLiteral("plan.dxf")), QStringLiteral("plan.vcst")));
    EXPECT_EQ(calls[0].field(QStringLiteral("result")), QStringLiteral("opened"));
}

TEST_F(PublishToViewcast, ViewerMissingOrTooOldLeavesItToTheTaskPane)
{
    struct Case
    {
        const char* what;
        std::optional<QString> current;
        QList<int> installed;
    };
    const Case cases[] = {
        {"no current version", std::nullopt, {9, 10}},
        {"no dot", QStringLiteral("VcModelViewer"), {9}},
        {"not a number", QStringLiteral("VcModelViewer.VcstViewer.abc"), {9}},
        {"zero", QStringLiteral("VcModelViewer.VcstViewer.0"), {9}},
        {"below 9", QStringLiteral("VcModelViewer.VcstViewer.8"), {9}},
        {"none creatable", QStringLiteral("VcModelViewer.VcstViewer.12"), {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        QDir(m_bus.serviceFolder()).removeRecursively();
        QDir().mkpath(m_bus.serviceFolder());
        QFile::remove(registryFile());
        if (!each.installed.isEmpty())
            installViewer(each.installed);
        QSettings registry(registryFile(), QSettings::IniFormat);
        const QString key =
            QStringLiteral("HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer/Default");
        if (each.current)
            registry.setValue(key, *each.current);
        else
            registry.remove(key);
        registry.sync();

        const HostResult result = publish(drawing(QStringLiteral("site/plan.dxf")));
        expectFinished(result);
        expectNoticeOnly(result);
        EXPECT_EQ(result.events.count(QStringLiteral("file-written")), 0);
        EXPECT_FALSE(QFileInfo::exists(scratch())) << "nothing is saved without a viewer";
    }
}

TEST_F(PublishToViewcast, CopyIsWrittenLosslesslyIntoTheScratchFolderWhereverTheDrawingIs)
{
    installViewer({11});
    const QString elsewhere = m_host.home() + QStringLiteral("/projects/2024 north/plan.dxf");
    writeFile(elsewhere, contentOf(drawing(QStringLiteral("site/plan.dxf"))));

    const HostResult result = publish(elsewhere);
    expectFinished(result);
    EXPECT_EQ(result.events.values(QStringLiteral("file-written"), QStringLiteral("path")),
              QStringList{scratch(QStringLiteral("plan.dxf"))});
    EXPECT_EQ(DrawingScripts::check(scratch(QStringLiteral("plan.dxf")), elsewhere), QString());
    EXPECT_EQ(contentOf(scratch(QStringLiteral("plan.dxf"))), contentOf(elsewhere));
    const auto calls = result.events.named(kViewerCall);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].fields.value(QStringLiteral("args")).toArray(),
              openArguments(scratch(QStringLiteral("plan.dxf")), QStringLiteral("plan.vcst")));
}

TEST_F(PublishToViewcast, ViewerIsGivenLatin1TextSoOtherCharactersArriveAsQuestionMarks)
{
    installViewer({10});
    // The script goes in a file (read as UTF-8) and the host runs in a UTF-8 locale, so that
    // only the module's own conversion can change the names.
    m_host.setEnvironment(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    const QString script = m_host.home() + QStringLiteral("/publish.qs");
    writeFile(script, QStringLiteral("open \"%1\"\nVIEWCAST\nwait-events\nopen \"%2\"\nVIEWCAST\n"
                                     "wait-events\n")
                          .arg(drawing(QStringLiteral("site/café.dxf")),
                               drawing(QStringLiteral("site/平面.dxf")))
                          .toUtf8());
    const HostResult result = m_host.run({script, QStringLiteral("--registry"), registryFile()});
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    EXPECT_EQ(
        result.events.values(QStringLiteral("file-written"), QStringLiteral("path")),
        (QStringList{scratch(QStringLiteral("café.dxf")), scratch(QStringLiteral("平面.dxf"))}));
    const auto calls = result.events.named(kViewerCall);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[0].fields.value(QStringLiteral("args")).toArray(),
              openArguments(scratch(QStringLiteral("café.dxf")), QStringLiteral("café.vcst")));
    EXPECT_EQ(calls[0].field(QStringLiteral("result")), QStringLiteral("opened"));
    EXPECT_EQ(calls[1].fields.value(QStringLiteral("args")).toArray(),
              openArguments(scratch(QStringLiteral("??.dxf")), QStringLiteral("??.vcst")));
    EXPECT_TRUE(
        calls[1].field(QStringLiteral("result")).startsWith(QStringLiteral("no such file")));
}

TEST_F(PublishToViewcast, ScratchFolderWithFilesStaysAndAnEmptyOneIsMadeAnew)
{
    installViewer({10});
    // A mode that a folder the module makes never has: it tells the old folder from a new one.
    const QFile::Permissions marked =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeOther;
    ASSERT_TRUE(QDir().mkpath(scratch()));
    ASSERT_TRUE(QFile::setPermissions(scratch(), marked));

    expectFinished(publish(drawing(QStringLiteral("site/plan.dxf"))));
    EXPECT_NE(QFileInfo(scratch()).permissions() & kModeBits, marked)
        << "the empty folder was kept";
    EXPECT_EQ(filesIn(scratch()), QStringList{QStringLiteral("plan.dxf")});

    writeFile(scratch(QStringLiteral("earlier.txt")), "from a run before");
    QFile::remove(scratch(QStringLiteral("plan.dxf")));
    ASSERT_TRUE(QFile::setPermissions(scratch(), marked));
    const HostResult again = publish(drawing(QStringLiteral("site/plan.dxf")));
    expectFinished(again);
    EXPECT_EQ(QFileInfo(scratch()).permissions() & kModeBits, marked) << "the folder was replaced";
    EXPECT_EQ(filesIn(scratch()),
              (QStringList{QStringLiteral("earlier.txt"), QStringLiteral("plan.dxf")}));
    EXPECT_EQ(contentOf(scratch(QStringLiteral("earlier.txt"))), QByteArray("from a run before"));
    EXPECT_EQ(again.events.count(kViewerCall), 1);
}

TEST_F(PublishToViewcast, ReferencedDrawingsAreCopiedOnceEachWithoutOverwriting)
{
    installViewer({10});
    writeFile(scratch(QStringLiteral("c.dxf")), "kept from before");

    const HostResult result = publish(drawing(QStringLiteral("tree/main.dxf")));
    expectFinished(result);
    EXPECT_EQ(filesIn(scratch()),
              (QStringList{QStringLiteral("a.dxf"), QStringLiteral("b.dxf"),
                           QStringLiteral("c.dxf"), QStringLiteral("main.dxf")}));
    EXPECT_EQ(contentOf(scratch(QStringLiteral("a.dxf"))),
              contentOf(drawing(QStringLiteral("tree/parts/a.dxf"))));
    EXPECT_EQ(contentOf(scratch(QStringLiteral("b.dxf"))),
              contentOf(drawing(QStringLiteral("tree/shared/b.dxf"))));
    EXPECT_EQ(contentOf(scratch(QStringLiteral("c.dxf"))), QByteArray("kept from before"));
    EXPECT_EQ(contentOf(scratch(QStringLiteral("main.dxf"))),
              contentOf(drawing(QStringLiteral("tree/main.dxf"))))
        << "the circular reference back to main.dxf must not replace the written copy";
    EXPECT_EQ(result.events.values(QStringLiteral("file-written"), QStringLiteral("path")),
              QStringList{scratch(QStringLiteral("main.dxf"))});
    const auto calls = result.events.named(kViewerCall);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].fields.value(QStringLiteral("args")).toArray(),
              openArguments(scratch(QStringLiteral("main.dxf")), QStringLiteral("main.vcst")));
}

TEST_F(PublishToViewcast, DrawingNeverSavedOrScratchFolderNotWritableShowsTheErrorBox)
{
    installViewer({10});
    const QString notes = m_host.home() + QStringLiteral("/notes.txt");
    writeFile(notes, "not a drawing\n");
    const HostResult unsaved = publish(notes);
    expectFinished(unsaved);
    expectErrorBoxOnly(unsaved);
    EXPECT_EQ(unsaved.events.count(QStringLiteral("file-written")), 0);

    QDir(scratch()).removeRecursively();
    writeFile(scratch(), "a file where the scratch folder should be");
    const HostResult unwritable = publish(drawing(QStringLiteral("site/plan.dxf")));
    expectFinished(unwritable);
    expectErrorBoxOnly(unwritable);
    EXPECT_EQ(contentOf(scratch()), QByteArray("a file where the scratch folder should be"));
}
} // namespace
