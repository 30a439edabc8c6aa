// The companions through quillon-host, in installations of the test's own: which of them the
// module reaches, in which order, and what the user's switches do.
#include "HostProcess.h"
#include "StageFiles.h"
#include "TestPrinters.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QSettings>
#include <QTemporaryDir>
#include <QUuid>

#include <gtest/gtest.h>

#include <optional>

namespace {
QJsonObject withValue(const QJsonArray& objects, const QString& key, const QJsonValue& value)
{
    for (const QJsonValue& object : objects) {
        if (object[key] == value)
            return object.toObject();
    }
    return {};
}

class CompanionsHost : public ::testing::Test
{
protected:
    CompanionsHost()
    {
        QDir().mkpath(m_root.filePath("modules"));
        QDir().mkpath(m_root.filePath("companions"));
        place("ExtCommands.tx", "modules");
    }

    // Companion libraries go into the companion folder, connector modules into the module
    // folder, as hard links of the stage's files (a symbolic link would not do: a library's
    // $ORIGIN is where the link points).
    void install(const QStringList& companions)
    {
        for (const QString& companion : companions) {
            if (companion == "QuillonOmniplaneConnector" || companion == "QNTForgeportConnector")
                place(companion + ".tx", "modules");
            else
                place("lib" + companion + ".so", "companions");
        }
    }

    void place(const QString& file, const QString& folder)
    {
        const QString source = HostProcess::stageFolder() + '/' + file;
        const QString target = m_root.filePath(folder + '/' + file);
        ASSERT_TRUE(StageFiles::linkOrCopy(source, target)) << qPrintable(source);
    }

    // "OmniplaneCSEnable" in the registry stand-in; "premiumnetworkdisable" where Qt's system
    // scope keeps it on Linux. Nothing given: the value is absent.
    void setSwitches(const std::optional<QVariant>& collaboration,
                     const std::optional<QString>& networkDisabled)
    {
        QSettings registry(m_root.filePath("registry.ini"), QSettings::IniFormat);
        QSettings system(m_host.folders().systemConfig() + "/Corvane/Quillon.conf",
                         QSettings::IniFormat);
        registry.remove("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable");
        system.remove("Network/premiumnetworkdisable");
        if (collaboration)
            registry.setValue("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable",
                              *collaboration);
        if (networkDisabled)
            system.setValue("Network/premiumnetworkdisable", *networkDisabled);
    }

    HostResult run(const QString& script, const QStringList& extra = {})
    {
        HostResult result = m_host.runScript(script, arguments() + extra);
        EXPECT_EQ(result.exitCode, 0) << result.standardError.toStdString();
        return result;
    }

    QStringList arguments() const
    {
        return {"--module-path",    m_root.filePath("modules"),
                "--companion-path", m_root.filePath("companions"),
                "--registry",       m_root.filePath("registry.ini")};
    }

    const QStringList m_all{"QuillonQnMurmurConnector", "QuillonOmniplaneConnector",
                            "QNTForgeportConnector", "TarnTaskPane"};
    HostProcess m_host;
    QTemporaryDir m_root;
};

// Kept: docs/lifecycle.md, rows "Question view", "Collaboration connector", "Online connector" and
// "Task pane".
TEST_F(CompanionsHost, EveryCompanionInTheReactorsOrderOnCreateAndDestroy)
{
    install(m_all);
    setSwitches(true, std::nullopt);
    const HostResult result = run("mainframe create; Home; _Community; mainframe destroy");
    EXPECT_EQ(result.events.timeline({"mainframe-created", "mainframe-destroyed",
                                      "module-loaded module", "module-unloaded module",
                                      "module-unload-deferred module", "companion-call call",
                                      "command-added name", "command-removed name"}),
              QStringList({
                  "module-loaded ExtCommands",
                  "command-added _Home",
                  "command-added _Community",
                  "command-added _VIEWCAST",
                  "mainframe-created",
                  "companion-call addiQuestionView",
                  "module-loaded QuillonOmniplaneConnector",
                  "companion-call addQNOmniplaneView",
                  "module-loaded QNTForgeportConnector",
                  "companion-call addXmlTodxf",
                  // The Help-menu entries come between the connectors and the task pane.
                  "command-added _RELEASENOTES",
                  "command-added _CHECKFORUPDATES",
                  "companion-call addTaskPane",
                  "companion-call showTaskPane",
                  "companion-call showiQuestionView",
                  "mainframe-destroyed",
                  "command-removed _CHECKFORUPDATES",
                  "command-removed _RELEASENOTES",
                  "companion-call removeXmlTodxf",
                  // The reactor still holds the online connector: its unload waits for it.
                  "module-unload-deferred QNTForgeportConnector",
                  "module-unloaded QuillonOmniplaneConnector",
                  "command-removed _Home",
                  "command-removed _Community",
                  "command-removed _VIEWCAST",
                  "module-unloaded ExtCommands",
                  "module-unloaded QNTForgeportConnector",
              }));
    // The task pane serves this installation (the host's installer gave it its identifier) as
    // the enterprise edition.
    const QString installation =
        QSettings(m_host.folders().configHome() + "/Corvane/Quillon.conf", QSettings::IniFormat)
            .value("Installation/Id")
            .toString();
    EXPECT_FALSE(QUuid(installation).isNull());
    QJsonValue args;
    for (const RecordedEvent& call : result.events.named("companion-call")) {
        if (call.field("call") == "addTaskPane")
            args = call.fields["args"];
    }
    EXPECT_EQ(args, QJsonArray({installation, "ENT"}));
}

struct SwitchCase
{
    const char* name;
    std::optional<QVariant> collaboration;
    std::optional<QString> networkDisabled;
    QString calls;
};

// How failures and CTest name the case.
void PrintTo(const SwitchCase& each, std::ostream* out)
{
    *out << each.name;
}

// The calls of a session that creates the main window and ends (which destroys it).
const QString kNetworkOn = "addiQuestionView addXmlTodxf addTaskPane removeXmlTodxf";

class CompanionSwitches : public CompanionsHost, public ::testing::WithParamInterface<SwitchCase>
{};

TEST_P(CompanionSwitches, TurnTheNetworkCompanionsAndTheCollaborationConnectorOnAndOff)
{
    install(m_all);
    setSwitches(GetParam().collaboration, GetParam().networkDisabled);
    const HostResult result = run("mainframe create");
    EXPECT_EQ(result.events.values("companion-call", "call").join(' '), GetParam().calls);
    EXPECT_EQ(result.events.values("module-loaded", "module").contains("QuillonOmniplaneConnector"),
              GetParam().calls.contains("addQNOmniplaneView"))
        << "loaded only when switched on";
}

INSTANTIATE_TEST_SUITE_P(
    Settings, CompanionSwitches,
    ::testing::Values(
        SwitchCase{"NetworkDisabledWithBlanksAndCapitals", std::nullopt, QString(" YES "),
                   "addXmlTodxf removeXmlTodxf"},
        SwitchCase{"CollaborationFalseNetworkNo", false, QString("no"), kNetworkOn},
        SwitchCase{"CollaborationZeroNetworkOne", 0, QString("1"), kNetworkOn},
        SwitchCase{"CollaborationAbsentNetworkTrue", std::nullopt, QString("true"), kNetworkOn},
        SwitchCase{"CollaborationTrueNetworkYesPlease", true, QString("yes please"),
                   "addiQuestionView addQNOmniplaneView addXmlTodxf addTaskPane removeXmlTodxf"}));

// Switched on but not installed, the collaboration connector is asked for and, missing, left out:
// nothing is called in it, and the rest goes on as usual.
TEST_F(CompanionsHost, ACollaborationConnectorSwitchedOnButNotInstalledIsLeftOut)
{
    install({"QuillonQnMurmurConnector", "QNTForgeportConnector", "TarnTaskPane"});
    setSwitches(true, std::nullopt);
    const HostResult result = run("mainframe create");
    EXPECT_EQ(result.events.values("module-load-failed", "module"),
              QStringList{"QuillonOmniplaneConnector"});
    EXPECT_EQ(result.events.values("companion-call", "call").join(' '), kNetworkOn);
}

// The companion folder alone is searched: the module here is the stage's, with every companion
// library lying beside it, and only those in the companion folder are called.
struct FolderCase
{
    const char* name;
    QStringList installed;
};

// How failures and CTest name the case.
void PrintTo(const FolderCase& each, std::ostream* out)
{
    *out << each.name;
}

class CompanionFolder : public CompanionsHost, public ::testing::WithParamInterface<FolderCase>
{};

TEST_P(CompanionFolder, OnlyTheCompanionsInItAreCalledThoughAllLieBesideTheModule)
{
    install(GetParam().installed);
    const QString stage = HostProcess::stageFolder();
    const HostResult result = m_host.runScript(
        "mainframe create; Home; Community; open \"" + stage + "/demo/plan.dxf\"; VIEWCAST",
        {"--module-path", stage, "--companion-path", m_root.filePath("companions"), "--registry",
         m_root.filePath("registry.ini")});
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    QStringList called = result.events.values("companion-call", "library");
    called.removeDuplicates();
    called.removeAll("QNTForgeportConnector"); // a platform module, from the module folder
    called.sort();
    QStringList installed = GetParam().installed;
    installed.sort();
    EXPECT_EQ(called, installed);
    // The module works all the same; what the crash-report service records is there only with it.
    EXPECT_EQ(result.events.values("command-added", "name").mid(0, 3),
              QStringList({"_Home", "_Community", "_VIEWCAST"}));
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100", "command-ended 5100"}));
    EXPECT_EQ(QFile::exists(m_host.folders().configHome() + "/Corvane/CrashReport.conf"),
              installed.contains("TarnCrashReportSendService"));
}

INSTANTIATE_TEST_SUITE_P(
    Installations, CompanionFolder,
    ::testing::Values(FolderCase{"None", {}}, FolderCase{"TaskPaneOnly", {"TarnTaskPane"}},
                      FolderCase{"QuestionViewAndCrashReport",
                                 {"QuillonQnMurmurConnector", "TarnCrashReportSendService"}},
                      FolderCase{"EveryLibrary",
                                 {"QuillonQnMurmurConnector", "TarnCrashReportSendService",
                                  "TarnTaskPane"}}));

// The host arranges the library search for itself: unless the companion folder leads
// LD_LIBRARY_PATH already, it starts itself again, once, with the folder put first, and the
// loader looks for a companion's bare file name there. The second start keeps the arguments, the
// standard streams and the exit code.
TEST_F(CompanionsHost, StartsItselfAgainWithTheCompanionFolderFirstOnTheSearchPath)
{
    install({"TarnTaskPane"});
    const QString companions = m_root.filePath("companions");
    const auto starts = [](const HostResult& result) {
        return result.standardError.count("transferring control: ");
    };
    m_host.setEnvironment("LD_DEBUG", "libs");

    const HostResult restarted = m_host.runScript("mainframe create; load Nowhere", arguments());
    EXPECT_EQ(starts(restarted), 2);
    EXPECT_EQ(restarted.exitCode, 1);
    EXPECT_TRUE(restarted.standardError.contains("quillon-host: line 1 (load Nowhere)"))
        << qPrintable(restarted.standardError.right(2000));
    EXPECT_EQ(restarted.events.values("companion-call", "call"), QStringList({"addTaskPane"}));
    EXPECT_TRUE(
        restarted.standardError.contains("search path=" + companions + "\t\t(LD_LIBRARY_PATH)"));
    EXPECT_TRUE(
        restarted.standardError.contains("trying file=" + companions + "/libTarnTaskPane.so"));

    m_host.setEnvironment("LD_LIBRARY_PATH", companions + "/:/nowhere");
    const HostResult asStarted = run("mainframe create");
    EXPECT_EQ(starts(asStarted), 1);
    EXPECT_EQ(asStarted.events.values("companion-call", "call"),
              restarted.events.values("companion-call", "call"));

    m_host.setEnvironment("LD_LIBRARY_PATH", "/nowhere:" + companions);
    EXPECT_EQ(starts(run("mainframe create")), 2);
}

// Kept: docs/lifecycle.md, rows "Online connector" and "Add-Ins tab and panel".
TEST_F(CompanionsHost, WithoutAnyCompanionTheRestOfTheMainWindowWorkStillHappens)
{
    const HostResult result =
        run("ui; mainframe create; ui; Home; Community; mainframe destroy", {"--language", "1"});
    EXPECT_EQ(result.events.count("companion-call"), 0);
    EXPECT_GT(result.events.count("translator-installed"), 0);
    EXPECT_EQ(result.events.values("command-added", "name").mid(3),
              QStringList({"_RELEASENOTES", "_CHECKFORUPDATES"}));
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100"}));
    // The online connector is asked for, and asked to go, all the same.
    EXPECT_EQ(result.events.values("module-load-failed", "module"),
              QStringList{"QNTForgeportConnector"});
    EXPECT_EQ(result.events.values("module-unload-skipped", "module"),
              QStringList{"QNTForgeportConnector"});

    // The Add-Ins tab and panel stand without any sibling, captioned through the module's
    // translators, and the tab joins the workspace.
    const auto uis = result.events.named("ui");
    ASSERT_EQ(uis.size(), 2);
    for (int index : {0, 1}) {
        const QJsonObject model = uis[index].fields["model"].toObject();
        const QJsonObject main = withValue(model["groups"].toArray(), "main", true);
        const QJsonObject tab = withValue(main["tabs"].toArray(), "id", "ID_RibbonAddInsTab");
        const QJsonValue caption = index == 0 ? QJsonValue(QJsonValue::Undefined) : "Zusatzmodule";
        EXPECT_EQ(tab["caption"], caption);
        EXPECT_EQ(withValue(tab["panels"].toArray(), "id", "ID_RibbonAddInsPanel").value("caption"),
                  caption);
        EXPECT_EQ(main["panels"].toArray().contains("ID_RibbonAddInsPanel"), index == 1);
        EXPECT_EQ(
            withValue(model["workspaces"].toArray(), "name", "Drafting and Annotation")["tabs"]
                .toArray()
                .contains("ID_RibbonAddInsTab"),
            index == 1);
    }
}
} // namespace
