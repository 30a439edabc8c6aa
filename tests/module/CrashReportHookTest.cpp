// The module with the reference crash-report companion: which check runs, when, how often,
// and what version is recorded.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <OdHostCommandStack.h>
#include <OdRxModule.h>

#include <array>
#include <optional>

// The companion's own entry points: the version that earlier runs recorded.
extern "C" bool TarnCrashReportSendService_getRegVersion(QString* version);
extern "C" void TarnCrashReportSendService_setRegVersion(const QString* version);

namespace {
CFxHostDocumentManager* documents()
{
    return GetFxHostServices()->GetDocumentManager();
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
        GetFxHostServices()->GetProductVersion(m_saved[0], m_saved[1], m_saved[2], m_saved[3]);
    }
    void TearDown() override
    {
        loaded.reset();
        documents()->CloseAll();
        GetFxHostServices()->SetProductVersion(m_saved[0], m_saved[1], m_saved[2], m_saved[3]);
        LoadedModule::useFolder();
    }

    // Starts the module as the given product version, with `recorded` as the recorded one.
    void start(std::array<int, 4> version, const std::optional<QString>& recorded = {})
    {
        if (recorded)
            TarnCrashReportSendService_setRegVersion(&*recorded);
        recorder.clear();
        GetFxHostServices()->SetProductVersion(version[0], version[1], version[2], version[3]);
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

namespace {
struct RecordedVersionCase
{
    const char* name;
    std::optional<QString> recorded; // none: the home is new, nothing is recorded
    std::array<int, 4> running;
    QStringList calls;
    std::optional<QString> recordedAfter;
};

// How failures and CTest name the case.
void PrintTo(const RecordedVersionCase& each, std::ostream* out)
{
    *out << each.name;
}

const QStringList kInstallCheck{"getRegVersion", "initialCheckOnInstall", "setRegVersion"};
const QStringList kReminderCheck{"getRegVersion", "reminderCheck"};
} // namespace

class CrashReportRecordedVersion : public CrashReportHook,
                                   public ::testing::WithParamInterface<RecordedVersionCase>
{};

// Kept: docs/lifecycle.md, row "Crash-report check".
TEST_P(CrashReportRecordedVersion, ChoosesTheCheckThatOnlyTheFirstActivationMakes)
{
    const RecordedVersionCase& run = GetParam();
    start(run.running, run.recorded);
    EXPECT_EQ(calls(), QStringList({"getRegVersion"}));
    const int first = openDocument();
    openDocument();
    EXPECT_TRUE(documents()->ActivateDocument(first));
    EXPECT_EQ(calls(), run.calls);
    EXPECT_EQ(recordedVersion(), run.recordedAfter);
}

INSTANTIATE_TEST_SUITE_P(
    Runs, CrashReportRecordedVersion,
    ::testing::Values(
        RecordedVersionCase{
            "FirstRun", std::nullopt, {2017, 0, 5, 1234}, kInstallCheck, "2017.0.1234"},
        RecordedVersionCase{"SameVersion", "2017.0.3", {2017, 0, 9, 3}, kReminderCheck, "2017.0.3"},
        RecordedVersionCase{
            "OlderVersionRecorded", "2016.1.7", {2017, 0, 9, 3}, kInstallCheck, "2017.0.3"},
        RecordedVersionCase{
            "LaterServiceRelease", "2017.0.3", {2017, 1, 0, 9}, kReminderCheck, "2017.0.3"}));

// Documents that stood before the module came: closing one that is not active activates none,
// and a new one is created before it is activated. Only the activation makes the check.
TEST_F(CrashReportHook, CreatingOrClosingADocumentLeavesTheCheckToTheFirstActivation)
{
    const int first = openDocument();
    openDocument();
    start({2017, 0, 9, 3});
    EXPECT_TRUE(documents()->CloseDocument(first));
    EXPECT_EQ(calls(), QStringList({"getRegVersion"}));
    openDocument();
    EXPECT_EQ(recorder.events().timeline({"document-opened", "document-activated",
                                          "document-closed", "companion-call call"}),
              QStringList({"companion-call getRegVersion", "document-closed", "document-opened",
                           "document-activated", "companion-call initialCheckOnInstall",
                           "companion-call setRegVersion"}));
}

// Kept: docs/lifecycle.md, row "Crash-report reactor".
TEST_F(CrashReportHook, ASecondStartCreatesNoSecondReactor)
{
    start({2017, 0, 9, 3});
    // The command stack refuses commands it already has; take them off as a host would.
    for (const wchar_t* name : {L"_Home", L"_Community", L"_VIEWCAST"})
        odedHostRegCmds()->removeCmd(odedHostRegCmds()->lookupCmd(OdString(name)));
    recorder.clear();

    loaded->module()->initApp();
    openDocument();
    // No second look at the recorded version, and one reactor that checks once.
    EXPECT_EQ(calls(), QStringList({"initialCheckOnInstall", "setRegVersion"}));
}
