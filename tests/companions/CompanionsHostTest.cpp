// The companions through quillon-host, installed in any combination: which of them the module
// reaches, in which order, and what the user's switches do.
#include "CompanionInstallation.h"
#include "HostProcess.h"

#include <QJsonArray>
#include <QSettings>
#include <QUuid>

#include <gtest/gtest.h>

#include <algorithm>

namespace {
const QString kCreateAndDestroy = QStringLiteral("mainframe create; mainframe destroy");

// "library.call" of every call into a companion, in order.
QStringList companionCalls(const HostResult& result)
{
    QStringList calls;
    for (const RecordedEvent& call : result.events.named(QStringLiteral("companion-call")))
        calls << call.field(QStringLiteral("library")) + QLatin1Char('.') +
                     call.field(QStringLiteral("call"));
    return calls;
}

QStringList libraries(const HostResult& result)
{
    QStringList called =
        result.events.values(QStringLiteral("companion-call"), QStringLiteral("library"));
    called.removeDuplicates();
    return called;
}

QJsonObject uiModel(const HostResult& result, int index)
{
    return result.events.named(QStringLiteral("ui"))
        .value(index)
        .fields.value(QStringLiteral("model"))
        .toObject();
}

QJsonObject withValue(const QJsonArray& objects, const QString& key, const QJsonValue& value)
{
    for (const QJsonValue& object : objects) {
        if (object[key] == value)
            return object.toObject();
    }
    return {};
}

QJsonObject mainGroup(const QJsonObject& model)
{
    return withValue(model[QStringLiteral("groups")].toArray(), QStringLiteral("main"), true);
}

QJsonObject addInsTab(const QJsonObject& model)
{
    return withValue(mainGroup(model)[QStringLiteral("tabs")].toArray(), QStringLiteral("id"),
                     QStringLiteral("ID_RibbonAddInsTab"));
}

QJsonArray workspaceTabs(const QJsonObject& model)
{
    return withValue(model[QStringLiteral("workspaces")].toArray(), QStringLiteral("name"),
                     QStringLiteral("Drafting and Annotation"))[QStringLiteral("tabs")]
        .toArray();
}

class CompanionsHostTest : public ::testing::Test
{
protected:
    HostResult run(const QString& script, const QStringList& extra = {})
    {
        HostResult result = m_host.runScript(script, m_installation.hostArguments() + extra);
        EXPECT_EQ(result.exitCode, 0) << result.standardError.toStdString();
        return result;
    }

    // The system-wide setting, where Qt's system scope keeps it on Linux.
    void setNetworkSwitch(const QString& value)
    {
        QSettings system(m_host.folders().systemConfig() + QStringLiteral("/Corvane/Quillon.conf"),
                         QSettings::IniFormat);
        system.setValue(QStringLiteral("Network/premiumnetworkdisable"), value);
    }

    HostProcess m_host;
    CompanionInstallation m_installation;
};

// No network switch is set: the network companions are on.
TEST_F(CompanionsHostTest, EveryCompanionInTheReactorsOrderOnCreateAndDestroy)
{
    m_installation.installAll();
    m_installation.setCollaborationEnabled(true);
    const HostResult result = run(kCreateAndDestroy);
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
    EXPECT_EQ(libraries(result),
              QStringList({"QuillonQnMurmurConnector", "QuillonOmniplaneConnector",
                           "QNTForgeportConnector", "TarnTaskPane"}));
}

TEST_F(CompanionsHostTest, TheTaskPaneServesThisInstallationAsTheEnterpriseEdition)
{
    m_installation.install(QStringLiteral("TarnTaskPane"));
    const HostResult result = run(QStringLiteral("mainframe create"));
    const QJsonArray args = result.events.named(QStringLiteral("companion-call"))
                                .value(0)
                                .fields.value(QStringLiteral("args"))
                                .toArray();
    const QSettings installer(m_host.folders().configHome() +
                                  QStringLiteral("/Corvane/Quillon.conf"),
                              QSettings::IniFormat);
    const QString installationId = installer.value(QStringLiteral("Installation/Id")).toString();
    EXPECT_FALSE(QUuid(installationId).isNull());
    EXPECT_EQ(args, QJsonArray({installationId, QStringLiteral("ENT")}));
}

TEST_F(CompanionsHostTest, TheOnlineConnectorComesBackWithASecondMainWindow)
{
    m_installation.install(QStringLiteral("QNTForgeportConnector"));
    const HostResult result =
        run(QStringLiteral("mainframe create; mainframe destroy; mainframe create; "
                           "mainframe destroy"));
    EXPECT_EQ(
        result.events.timeline({"module-loaded module", "module-unload-deferred references",
                                "module-unloaded module", "companion-call call"}),
        QStringList({"module-loaded ExtCommands", "module-loaded QNTForgeportConnector",
                     "companion-call addXmlTodxf", "companion-call removeXmlTodxf",
                     "module-unload-deferred 1", "companion-call addXmlTodxf",
                     "companion-call removeXmlTodxf", "module-unload-deferred 1",
                     "module-unloaded ExtCommands", "module-unloaded QNTForgeportConnector"}));
}

// Each companion installed alone is the only one reached; the others' steps are silent.
class CompanionAlone : public CompanionsHostTest, public ::testing::WithParamInterface<QString>
{};

TEST_P(CompanionAlone, IsTheOnlyOneReached)
{
    m_installation.install(GetParam());
    m_installation.setCollaborationEnabled(true);
    const HostResult result =
        run(QStringLiteral("mainframe create; Home; Community; mainframe destroy"));
    EXPECT_EQ(libraries(result), QStringList{GetParam()});
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100"}));
    EXPECT_EQ(result.events.count("error"), 0);
}

INSTANTIATE_TEST_SUITE_P(EachCompanion, CompanionAlone,
                         ::testing::ValuesIn(CompanionInstallation::allCompanions()),
                         [](const auto& info) { return info.param.toStdString(); });

TEST_F(CompanionsHostTest, HomeAndCommunityShowThePaneAndTheView)
{
    m_installation.installAll();
    const HostResult result = run(QStringLiteral("mainframe create; Home; _Community"));
    const QStringList calls = companionCalls(result);
    // What the commands call comes right after the main window's work.
    EXPECT_EQ(
        calls.mid(calls.indexOf("TarnTaskPane.addTaskPane") + 1, 2),
        QStringList({"TarnTaskPane.showTaskPane", "QuillonQnMurmurConnector.showiQuestionView"}));
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100"}));
}

TEST_F(CompanionsHostTest, WithoutAnyCompanionTheRestOfTheMainWindowWorkStillHappens)
{
    const HostResult result =
        run(QStringLiteral("mainframe create; ui; Home; Community; mainframe destroy"),
            {QStringLiteral("--language"), QStringLiteral("1")});
    EXPECT_EQ(result.events.count("companion-call"), 0);
    EXPECT_GT(result.events.count("translator-installed"), 0);
    // The caption comes through the module's translators, installed just before.
    EXPECT_EQ(addInsTab(uiModel(result, 0))[QStringLiteral("caption")],
              QStringLiteral("Zusatzmodule"));
    EXPECT_EQ(result.events.values("command-added", "name").mid(3),
              QStringList({"_RELEASENOTES", "_CHECKFORUPDATES"}));
    EXPECT_EQ(result.events.timeline({"command-ended result"}),
              QStringList({"command-ended 5100", "command-ended 5100"}));
    // The online connector is asked for, and asked to go, all the same.
    EXPECT_EQ(result.events.values("module-load-failed", "module"),
              QStringList{"QNTForgeportConnector"});
    EXPECT_EQ(result.events.values("module-unload-skipped", "module"),
              QStringList{"QNTForgeportConnector"});
}

TEST_F(CompanionsHostTest, TheAddInsTabAndPanelStandWithoutAnySibling)
{
    m_installation.installAll();
    const HostResult result = run(QStringLiteral("ui; mainframe create; ui; mainframe create; "
                                                 "mainframe destroy; ui"));
    const QJsonObject before = uiModel(result, 0);
    EXPECT_TRUE(addInsTab(before).isEmpty());
    const QJsonObject panel{{"id", "ID_RibbonAddInsPanel"},
                            {"caption", "Add-Ins"},
                            {"collapsedCaption", "Add-Ins"},
                            {"launcher", 0},
                            {"rows", QJsonArray()}};
    const QJsonObject tab{{"id", "ID_RibbonAddInsTab"},
                          {"caption", "Add-Ins"},
                          {"listCaption", "Add-Ins"},
                          {"panels", QJsonArray{panel}}};
    for (int index : {1, 2}) {
        const QJsonObject after = uiModel(result, index);
        EXPECT_EQ(addInsTab(after), tab) << "ui " << index;
        // A second main window finds the tab and panel, and the main window's going leaves
        // them: each stands once, after the host's own.
        const QJsonArray tabs = mainGroup(after)[QStringLiteral("tabs")].toArray();
        EXPECT_EQ(std::count(tabs.begin(), tabs.end(), QJsonValue(tab)), 1);
        EXPECT_EQ(mainGroup(after)[QStringLiteral("panels")].toArray(),
                  mainGroup(before)[QStringLiteral("panels")].toArray() +
                      QJsonValue("ID_RibbonAddInsPanel"));
        EXPECT_EQ(workspaceTabs(after), workspaceTabs(before) + QJsonValue("ID_RibbonAddInsTab"));
    }
}

struct NetworkSwitchCase
{
    const char* name;
    const char* value;
    bool networkCompanionsOff;
};

void PrintTo(const NetworkSwitchCase& switchCase, std::ostream* out)
{
    *out << '"' << switchCase.value << '"';
}

class NetworkSwitch : public CompanionsHostTest,
                      public ::testing::WithParamInterface<NetworkSwitchCase>
{};

TEST_P(NetworkSwitch, DecidesAboutTheQuestionViewAndTheTaskPaneOnly)
{
    m_installation.installAll();
    setNetworkSwitch(QString::fromUtf8(GetParam().value));
    const HostResult result = run(QStringLiteral("mainframe create"));
    const QStringList calls = companionCalls(result);
    EXPECT_EQ(calls.contains("QuillonQnMurmurConnector.addiQuestionView"),
              !GetParam().networkCompanionsOff);
    EXPECT_EQ(calls.contains("TarnTaskPane.addTaskPane"), !GetParam().networkCompanionsOff);
    EXPECT_TRUE(calls.contains("QNTForgeportConnector.addXmlTodxf"));
}

INSTANTIATE_TEST_SUITE_P(Values, NetworkSwitch,
                         ::testing::Values(NetworkSwitchCase{"CapitalsWithBlanks", " YES ", true},
                                           NetworkSwitchCase{"No", "no", false},
                                           NetworkSwitchCase{"One", "1", false},
                                           NetworkSwitchCase{"True", "true", false},
                                           NetworkSwitchCase{"YesAndMore", "yes please", false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CompanionsHostTest, TheCollaborationConnectorIsNotEvenLoadedUnlessTheRegistrySaysSo)
{
    m_installation.installAll();
    for (const QVariant& value : {QVariant(), QVariant(false), QVariant(0)}) {
        if (value.isValid())
            m_installation.setCollaborationEnabled(value);
        const HostResult result = run(QStringLiteral("mainframe create"));
        EXPECT_FALSE(
            result.events.values("module-loaded", "module").contains("QuillonOmniplaneConnector"))
            << value.toString().toStdString();
        EXPECT_FALSE(libraries(result).contains("QuillonOmniplaneConnector"));
    }
    m_installation.setCollaborationEnabled(true);
    const HostResult result = run(QStringLiteral("mainframe create"));
    EXPECT_TRUE(
        result.events.values("module-loaded", "module").contains("QuillonOmniplaneConnector"));
    EXPECT_TRUE(companionCalls(result).contains("QuillonOmniplaneConnector.addQNOmniplaneView"));
}

} // namespace
