// The main window's Help entries and languages through quillon-host: the default locale, the
// translators installed, the texts of the Help entries and the product pages they open.
#include "HostProcess.h"
#include "StageFiles.h"
#include "TestPrinters.h"
#include "UiModel.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

namespace {
const char* const kEnglish = "Check for Updates...";
const char* const kGerman = "Nach Updates suchen...";
const char* const kTraditional = "檢查更新...";
const char* const kSimplified = "检查更新...";

struct Language
{
    int id;
    // The operating system's locale. For a setting other than "System" it is mostly Taiwanese,
    // which would show as traditional Chinese wherever the system were wrongly consulted.
    const char* locale;
    // Between the web site's host and "/products-services/...".
    const char* segment;
    const char* defaultLocale;
    // The folder of the stage's messages tree that the catalogues come from; empty for the
    // base folder, which holds none.
    const char* folder;
    const char* checkForUpdates;
};

void PrintTo(const Language& language, std::ostream* out)
{
    *out << "language " << language.id << " on " << language.locale;
}

const Language kLanguages[] = {
    {0, "de_DE", "/german", "de_DE", "german", kGerman},
    {0, "zh_TW", "/chinese/QObject::traditional", "zh_CN", "chinese/QObject::traditional",
     kTraditional},
    // Chinese of any country but China is traditional Chinese, not only Taiwan's.
    {0, "zh_HK", "/chinese/QObject::traditional", "zh_CN", "chinese/QObject::traditional",
     kTraditional},
    {0, "zh_SG", "/chinese/QObject::traditional", "zh_CN", "chinese/QObject::traditional",
     kTraditional},
    {0, "zh_CN", "/chinese/simplified", "zh_CN", "chinese/simplified", kSimplified},
    {0, "sv_SE", "", "en_US", "", kEnglish},
    {0, "C", "/", "C", "", kEnglish},
    {1, "zh_TW", "/german", "de_DE", "german", kGerman},
    {2, "zh_TW", "", "en_US", "", kEnglish},
    {3, "zh_TW", "/turkish", "tr_TR", "", kEnglish},
    {4, "zh_TW", "/hungarian", "hu_HU", "", kEnglish},
    {5, "zh_TW", "/polish", "pl_PL", "", kEnglish},
    {6, "zh_TW", "/japanese", "ja_JP", "", kEnglish},
    {7, "zh_TW", "/french", "fr_FR", "", kEnglish},
    {8, "de_DE", "/chinese/QObject::traditional", "zh_CN", "chinese/QObject::traditional",
     kTraditional},
    {9, "zh_TW", "/chinese/simplified", "zh_CN", "chinese/simplified", kSimplified},
    {10, "zh_TW", "/italian", "it_IT", "", kEnglish},
    {11, "zh_TW", "/spanish", "es_ES", "", kEnglish},
    {12, "zh_TW", "/greek", "el_GR", "", kEnglish},
    {13, "zh_TW", "/korean", "ko_KR", "", kEnglish},
    {14, "zh_TW", "/vietnamese", "vi_VN", "", kEnglish},
    {15, "zh_TW", "/catalan", "ca_ES", "", kEnglish},
    {16, "zh_TW", "/thai", "th_TH", "", kEnglish},
    {17, "zh_TW", "/dutch", "nl_NL", "", kEnglish},
    {18, "zh_TW", "/russian", "ru_RU", "", kEnglish},
    {19, "zh_TW", "/portuguese", "pt_BR", "", kEnglish},
    {20, "zh_TW", "/czech", "cs_CZ", "", kEnglish},
    {99, "zh_TW", "/", "en_US", "", kEnglish},
};

QString productPage(const QString& segment, const QString& suffix)
{
    return "http://" EXTCOMMANDS_CORPORATE_HOST + segment +
           "/products-services/quillon-cad-software/" + suffix;
}

QStringList arguments(int language, const QString& locale)
{
    return {"--language", QString::number(language), "--locale", locale};
}

QString checkForUpdatesText(const HostResult& result)
{
    const auto ui = result.events.named("ui");
    return ui.isEmpty() ? QString()
                        : UiModel(ui.first().fields["model"].toObject())
                              .helpEntry("QUILLON", "ID_CHECKFORUPDATES")["text"]
                              .toString();
}

class LanguageTest : public ::testing::TestWithParam<Language>
{};

// Kept: docs/lifecycle.md, rows "Language folders", "Doubled slash" and "Default locale".
TEST_P(LanguageTest, SetsTheLocaleInstallsTheTranslatorsAndOpensThePagesOfTheLanguage)
{
    const Language& language = GetParam();
    HostProcess host;
    const HostResult result =
        host.runScript("mainframe create; ui; CHECKFORUPDATES; RELEASENOTES",
                       arguments(language.id, QString::fromUtf8(language.locale)));
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const QString segment = QString::fromUtf8(language.segment);
    EXPECT_EQ(result.events.values("url-opened", "url"),
              QStringList(
                  {productPage(segment, "free-download"), productPage(segment, "latest-version")}));
    EXPECT_EQ(result.events.values("default-locale", "name"),
              QStringList{QString::fromUtf8(language.defaultLocale)});
    QStringList catalogues{"", "", "", ""};
    const QString folder = HostProcess::stageFolder() + "/messages/" + language.folder + '/';
    if (*language.folder)
        catalogues = QStringList{folder + "GCode.qm", folder + "recentdocumentbrowser.qm",
                                 folder + "QuillonOmniplaneConnector.qm",
                                 folder + "QNTForgeportConnector.qm"};
    EXPECT_EQ(result.events.values("translator-installed", "file"), catalogues);
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(language.checkForUpdates));
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, LanguageTest, ::testing::ValuesIn(kLanguages));

// A desktop that cannot open the page changes nothing for the commands: each ends normally.
struct Desktop
{
    QStringList arguments;
    // What the host reports for each address handed to this desktop.
    QString event;
};

void PrintTo(const Desktop& desktop, std::ostream* out)
{
    *out << desktop.event.toStdString();
}

class WebPageCommandsTest : public ::testing::TestWithParam<Desktop>
{};

TEST_P(WebPageCommandsTest, EndNormallyWhetherTheDesktopOpensThePageOrRefusesIt)
{
    HostProcess host;
    const HostResult result = host.runScript(
        "mainframe create; CHECKFORUPDATES; _RELEASENOTES; checkforupdates", GetParam().arguments);
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const QString handed = GetParam().event + ' ';
    EXPECT_EQ(result.events.timeline({"url-opened url", "url-refused url", "command-ended result"}),
              QStringList({handed + productPage("", "free-download"), "command-ended 5100",
                           handed + productPage("", "latest-version"), "command-ended 5100",
                           handed + productPage("", "free-download"), "command-ended 5100"}));
}

INSTANTIATE_TEST_SUITE_P(Desktops, WebPageCommandsTest,
                         ::testing::Values(Desktop{{}, "url-opened"},
                                           Desktop{{"--refuse-urls"}, "url-refused"}));

// Each main window, and each creation of it again, installs a set of translators of its own;
// the sets installed before stay: none is taken away.
class SecondMainWindowTest : public ::testing::TestWithParam<const char*>
{};

// Kept: docs/lifecycle.md, row "Translators".
TEST_P(SecondMainWindowTest, InstallsASecondSetOfTranslatorsAndKeepsTheFirst)
{
    HostProcess host;
    const HostResult result =
        host.runScript(QString::fromUtf8(GetParam()) + "; ui", arguments(1, "zh_TW"));
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const QString folder = HostProcess::stageFolder() + "/messages/german/";
    const QStringList set{folder + "GCode.qm", folder + "recentdocumentbrowser.qm",
                          folder + "QuillonOmniplaneConnector.qm",
                          folder + "QNTForgeportConnector.qm"};
    EXPECT_EQ(result.events.values("translator-installed", "file"), set + set);
    EXPECT_EQ(result.events.values("translator-removed", "file"), QStringList());
    EXPECT_EQ(result.events.values("default-locale", "name"), QStringList({"de_DE", "de_DE"}));
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kGerman));
}

INSTANTIATE_TEST_SUITE_P(Creations, SecondMainWindowTest,
                         ::testing::Values("mainframe create; mainframe destroy; mainframe create",
                                           "mainframe create; mainframe create"));

// The host looks for translations beside its program: the test runs a program folder of its
// own (the host hard-linked or copied, the libraries linked) with the messages it chooses.
class TranslationFolderTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const QString program = m_folder.filePath("quillon-host");
        ASSERT_TRUE(StageFiles::linkOrCopy(HostProcess::program(), program));
        for (const QFileInfo& library :
             QDir(HostProcess::stageFolder()).entryInfoList({"*.so"}, QDir::Files))
            ASSERT_TRUE(QFile::link(library.filePath(), m_folder.filePath(library.fileName())));
        m_host.setProgram(program);
    }

    // German, with the module and its companions from the stage.
    HostResult runGerman()
    {
        return m_host.runScript("mainframe create; ui",
                                arguments(1, "en_US") +
                                    QStringList{"--module-path", HostProcess::stageFolder(),
                                                "--companion-path", HostProcess::stageFolder()});
    }

    QTemporaryDir m_folder;
    HostProcess m_host;
};

TEST_F(TranslationFolderTest, WithoutTheLanguageFolderTheBaseFolderIsUsed)
{
    ASSERT_TRUE(QDir().mkpath(m_folder.filePath("messages")));
    ASSERT_TRUE(QFile::copy(HostProcess::stageFolder() + "/messages/german/GCode.qm",
                            m_folder.filePath("messages/GCode.qm")));
    const HostResult result = runGerman();
    EXPECT_EQ(result.events.values("translator-installed", "file"),
              QStringList({m_folder.filePath("messages/GCode.qm"), "", "", ""}));
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kGerman));
}

// A catalogue missing from the language folder gives an empty translator, installed in its
// place, even when the base folder holds that catalogue.
// Kept: docs/lifecycle.md, row "Translators".
TEST_F(TranslationFolderTest, ALanguageFolderWithSomeCataloguesGivesEmptyTranslatorsForTheRest)
{
    const QString german = m_folder.filePath("messages/german/");
    ASSERT_TRUE(QDir().mkpath(german));
    for (const char* catalogue : {"GCode.qm", "QNTForgeportConnector.qm"})
        ASSERT_TRUE(QFile::copy(HostProcess::stageFolder() + "/messages/german/" + catalogue,
                                german + catalogue));
    ASSERT_TRUE(
        QFile::copy(HostProcess::stageFolder() + "/messages/german/recentdocumentbrowser.qm",
                    m_folder.filePath("messages/recentdocumentbrowser.qm")));
    const HostResult result = runGerman();
    EXPECT_EQ(result.events.values("translator-installed", "file"),
              QStringList({german + "GCode.qm", "", "", german + "QNTForgeportConnector.qm"}));
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kGerman));
}

// Kept: docs/lifecycle.md, row "Default locale".
TEST_F(TranslationFolderTest, WithoutAnyMessagesFolderOnlyTheDefaultLocaleChanges)
{
    const HostResult result = runGerman();
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    EXPECT_EQ(result.events.count("translator-installed"), 0);
    EXPECT_EQ(result.events.values("default-locale", "name"), QStringList{"de_DE"});
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kEnglish));
}

// Kept: docs/lifecycle.md, row "Help commands".
TEST(HelpCommandsTest, CommandsThatASiblingRegisteredFirstAreTheOnesTheEntriesRun)
{
    HostProcess host;
    const HostResult result = host.runScript(
        "mainframe create; ui; CHECKFORUPDATES; RELEASENOTES; mainframe destroy; commands",
        {"--module", "ForeignHelpCommands", "--module", "ExtCommands", "--module-path",
         EC_FIXTURE_DIR, "--module-path", HostProcess::stageFolder()});
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const UiModel ui(result.events.named("ui").value(0).fields["model"].toObject());
    EXPECT_EQ(ui.helpEntry("QUILLON", "ID_RELEASENOTES")["macro"].toString(), "RELEASENOTES");
    EXPECT_EQ(
        result.events.values("command-added", "name"),
        QStringList({"_CHECKFORUPDATES", "_RELEASENOTES", "_Home", "_Community", "_VIEWCAST"}))
        << "the module registers none of its own";
    EXPECT_EQ(result.events.values("foreign-command", "name"),
              QStringList({"CHECKFORUPDATES", "RELEASENOTES"}));
    EXPECT_EQ(result.events.count("url-opened"), 0);
    EXPECT_EQ(result.events.named("commands").value(0).fields["names"],
              QJsonArray({"CHECKFORUPDATES", "RELEASENOTES", "Home", "Community", "VIEWCAST"}))
        << "taking the entries out leaves the sibling's commands";
}
} // namespace
