// The module with the reference crash-report companion: which check runs, when, how often,
// and what version is recorded.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxSystemServices.h>
#include <OdEdCommandStack.h>
#include <OdRxModule.h>
#include <TarnCrashReportSendService.h>

#include <array>
#include <optional>

// The companion's own entry points: the version that earlier runs recorded.
extern "C" bool TarnCrashReportSendService_getRegVersion(QString* version);
extern "C" void TarnCrashReportSendService_setRegVersion(const QString* version);

namespace {
CFxDocumentManager* documents()
{
    return GetFxSystemServices()->GetDocumentManager();
}

std::optional<QString> recordedVersion()
{
    QString version;
    if (!TarnCrashReportSendService_getRegVersion(&version))
        return std::nullopt;
    return version;
}
} // namespace

class CrashReportHook : public ::testing::Test
{
protected:
    void SetUp() override
    {
        LoadedModule::useFolder();
        GetFxSystemServices()->GetProductVersion(m_saved[0], m_saved[1], m_saved[2], m_saved[3]);
    }
    void TearDown() override
    {
        loaded.reset();
        documents()->CloseAll();
        GetFxSystemServices()->SetProductVersion(m_saved[0], m_saved[1], m_saved[2], m_saved[3]);
        GetFxSystemServices()->SetMessageBoxHandler({});
        LoadedModule::useFolder();
    }

    // Starts the module as the given product version, with `recorded` as the recorded one.
    void start(std::array<int, 4> version, const std::optional<QString>& recorded = {})
    {
        if (recorded)
            TarnCrashReportSendService_setRegVersion(&*recorded);
        recorder.clear();
        GetFxSystemServices()->SetProductVersion(version[0], version[1], version[2], version[3]);
        loaded.emplace();
    }

    // Opens a document (which activates it) and gives its number.
    int openDocument()
    {
        return documents()->OpenDocument(QStringLiteral("/drawings/plan.dxf"))->GetIndex();
    }
    QStringList calls() const { return recorder.events().values("companion-call", "call"); }

    IsolatedHome home;
    EventRecorder recorder;
    std::optional<LoadedModule> loaded;

private:
    int m_saved[4] = {};
};

TEST_F(CrashReportHook, FirstRunChecksOnInstallAndRecordsTheRunningVersionAtTheFirstActivation)
{
    start({2017, 0, 5, 1234});
    EXPECT_EQ(calls(), QStringList({"getRegVersion"}));

    const int first = openDocument();
    EXPECT_EQ(calls(), QStringList({"getRegVersion", "initialCheckOnInstall", "setRegVersion"}));
    const auto recordCall = recorder.events().named("companion-call").last();
    EXPECT_EQ(recordCall.fields.value("args").toArray(), QJsonArray({"2017.0.1234"}));
    EXPECT_EQ(recorder.events().describe({"reactor-removed"}, "kind"),
              QStringList({"reactor-removed:document-manager"}));

    // Only the first activation checks; the reactor has left.
    openDocument();
    EXPECT_TRUE(documents()->ActivateDocument(first));
    EXPECT_EQ(calls().size(), 3);
    loaded.reset();
    EXPECT_EQ(recorder.events().describe({"reactor-removed"}, "cause"),
              QStringList({"reactor-removed", "reactor-removed"}));
    EXPECT_EQ(recordedVersion(), "2017.0.1234");
}

TEST_F(CrashReportHook, ARecordedVersionSelectsTheCheckAndOnlyTheInstallCheckRecords)
{
    struct Case
    {
        const char* recorded;
        std::array<int, 4> running;
        const char* check;
        const char* recordedAfter;
    };
    for (const Case& run : {Case{"2017.0.3", {2017, 0, 9, 3}, "reminderCheck", "2017.0.3"},
                            Case{"2016.1.7", {2017, 0, 9, 3}, "initialCheckOnInstall", "2017.0.3"},
                            Case{"2017.0.3", {2017, 1, 0, 9}, "reminderCheck", "2017.0.3"}}) {
        SCOPED_TRACE(std::string(run.recorded) + " then " + run.check);
        start(run.running, QString(run.recorded));
        openDocument();
        EXPECT_EQ(calls().mid(0, 2), QStringList({"getRegVersion", run.check}));
        EXPECT_EQ(recordedVersion(), QString(run.recordedAfter));
        loaded.reset();
    }
}

TEST_F(CrashReportHook, ASecondStartCreatesNoSecondReactor)
{
    start({2017, 0, 9, 3});
    // The command stack refuses commands it already has; take them off as a host would.
    for (const wchar_t* name : {L"_Home", L"_Community", L"_VIEWCAST"})
        odedRegCmds()->removeCmd(odedRegCmds()->lookupCmd(OdString(name)));
    recorder.clear();

    loaded->module()->initApp();
    EXPECT_EQ(recorder.events().count("companion-call"), 0);
    EXPECT_EQ(recorder.events().describe({"reactor-added"}, "kind"), QStringList());
    openDocument();
    EXPECT_EQ(calls(), QStringList({"initialCheckOnInstall", "setRegVersion"}));
}

TEST_F(CrashReportHook, WithoutTheCompanionLibraryTheModuleStartsAndNoCheckRuns)
{
    QTemporaryDir companionFolder;
    GetFxSystemServices()->SetCompanionFolder(companionFolder.path());
    start({2017, 0, 9, 3});
    openDocument();
    EXPECT_EQ(recorder.events().count("command-added"), 3);
    EXPECT_EQ(recorder.events().count("companion-call"), 0);
    EXPECT_EQ(recordedVersion(), std::nullopt);
}

TEST_F(CrashReportHook, PendingCrashReportsMakeTheCompanionAskThroughTheHostsMessageBox)
{
    const QDir reports(home.folders().dataHome() + "/Corvane/Quillon/CrashReports");
    ASSERT_TRUE(reports.mkpath("."));
    for (const char* file : {"b.dmp", "a.dmp", "notes.txt"}) {
        QFile report(reports.filePath(file));
        ASSERT_TRUE(report.open(QIODevice::WriteOnly));
    }
    QStringList asked;
    GetFxSystemServices()->SetMessageBoxHandler(
        [&](const QString& text, const QString& caption, int) {
            asked << caption + ": " + text;
            return 1;
        });

    start({2017, 1, 0, 9}, QStringLiteral("2017.1.9"));
    EXPECT_TRUE(asked.isEmpty());
    openDocument();
    EXPECT_EQ(asked, QStringList({"Quillon Crash Report: 2 crash report(s) are still waiting to be "
                                  "sent to Corvane: a.dmp, b.dmp"}));
    EXPECT_EQ(recorder.events().describe({"companion-call", "message-box"}, "call"),
              QStringList(
                  {"companion-call:getRegVersion", "companion-call:reminderCheck", "message-box"}));
}
