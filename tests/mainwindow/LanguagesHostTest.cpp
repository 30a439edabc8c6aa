// The host's user-interface language through quillon-host: the default locale, the translators
// installed, the texts of the Help entries and the product pages that the entries open.
#include "HostProcess.h"
#include "ProgramFolderCopy.h"
#include "UiModel.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {
const QStringList kCatalogues{"GCode", "recentdocumentbrowser", "QuillonOmniplaneConnector",
                              "QNTForgeportConnector"};
const char* const kEnglish = "Check for Updates...";
const char* const kGerman = "Nach Updates suchen...";

struct Language
{
    int id;
    // The operating system's locale. For a setting other than "System" it is Taiwanese, which
    // would show as traditional Chinese wherever the system were wrongly consulted.
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
     "檢查更新..."},
    {0, "zh_HK", "/chinese/QObject::traditional", "zh_CN", "chinese/QObject::traditional",
     "檢查更新..."},
    {0, "zh_CN", "/chinese/simplified", "zh_CN", "chinese/simplified", "检查更新..."},
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
     "檢查更新..."},
    {9, "zh_TW", "/chinese/simplified", "zh_CN", "chinese/simplified", "检查更新..."},
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
    return QStringLiteral("http://" EXTCOMMANDS_CORPORATE_HOST) + segment +
           QStringLiteral("/products-services/quillon-cad-software/") + suffix;
}

QStringList catalogueFiles(const QString& folder)
{
    QStringList files;
    for (const QString& catalogue : kCatalogues)
        files << folder + QLatin1Char('/') + catalogue + QStringLiteral(".qm");
    return files;
}

QStringList arguments(int language, const QString& locale)
{
    return {QStringLiteral("--language"), QString::number(language), QStringLiteral("--locale"),
            locale};
}

QString checkForUpdatesText(const HostResult& result)
{
    const auto ui = result.events.named(QStringLiteral("ui"));
    return ui.isEmpty()
               ? QString()
               : UiModel(ui.first().fields.value(QStringLiteral("model")).toObject())
                     .helpEntry(QStringLiteral("QUILLON"), QStringLiteral("ID_CHECKFORUPDATES"))
                     .value(QStringLiteral("text"))
                     .toString();
}

class LanguageTest : public ::testing::TestWithParam<Language>
{};

TEST_P(LanguageTest, SetsTheLocaleInstallsTheTranslatorsAndOpensThePagesOfTheLanguage)
{
    const Language& language = GetParam();
    HostProcess host;
    const HostResult result =
        host.runScript(QStringLiteral("mainframe create; ui; CHECKFORUPDATES; RELEASENOTES"),
                       arguments(language.id, QString::fromUtf8(language.locale)));
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const QString segment = QString::fromUtf8(language.segment);
    EXPECT_EQ(result.events.values("url-opened", "url"),
              QStringList(
                  {productPage(segment, "free-download"), productPage(segment, "latest-version")}));
    EXPECT_EQ(result.events.values("default-locale", "name"),
              QStringList{QString::fromUtf8(language.defaultLocale)});
    const QString folder = QString::fromUtf8(language.folder);
    EXPECT_EQ(result.events.values("translator-installed", "file"),
              folder.isEmpty()
                  ? QStringList({"", "", "", ""})
                  : catalogueFiles(HostProcess::stageFolder() + "/messages/" + folder));
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(language.checkForUpdates));
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, LanguageTest, ::testing::ValuesIn(kLanguages));

class TranslationFolderTest : public ::testing::Test
{
protected:
    HostResult runGerman()
    {
        m_host.setProgram(m_folder.program());
        // The module and its companions still come from the stage.
        return m_host.runScript(QStringLiteral("mainframe create; ui"),
                                arguments(1, QStringLiteral("en_US")) +
                                    QStringList{"--module-path", HostProcess::stageFolder(),
                                                "--companion-path", HostProcess::stageFolder()});
    }

    ProgramFolderCopy m_folder;
    HostProcess m_host;
};

TEST_F(TranslationFolderTest, WithoutTheLanguageFolderTheBaseFolderIsUsed)
{
    m_folder.copyCatalogue(QStringLiteral("german/GCode.qm"), QStringLiteral("GCode.qm"));
    const HostResult result = runGerman();
    EXPECT_EQ(result.events.values("translator-installed", "file"),
              QStringList({m_folder.messages() + "/GCode.qm", "", "", ""}));
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kGerman));
}

TEST_F(TranslationFolderTest, ALanguageFolderWithSomeCataloguesGivesEmptyTranslatorsForTheRest)
{
    m_folder.copyCatalogue(QStringLiteral("german/QNTForgeportConnector.qm"),
                           QStringLiteral("german/QNTForgeportConnector.qm"));
    const HostResult result = runGerman();
    EXPECT_EQ(result.events.values("translator-installed", "file"),
              QStringList({"", "", "", m_folder.messages() + "/german/QNTForgeportConnector.qm"}));
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kEnglish));
}

TEST_F(TranslationFolderTest, WithoutAnyMessagesFolderOnlyTheDefaultLocaleChanges)
{
    const HostResult result = runGerman();
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    EXPECT_EQ(result.events.count("translator-installed"), 0);
    EXPECT_EQ(result.events.values("default-locale", "name"), QStringList{"de_DE"});
    EXPECT_EQ(checkForUpdatesText(result), QString::fromUtf8(kEnglish));
}

TEST(TranslatorTest, EveryMainWindowInstallsAnotherSetOfTranslators)
{
    HostProcess host;
    const HostResult result =
        host.runScript(QStringLiteral("mainframe create; mainframe destroy; mainframe create"),
                       arguments(1, QStringLiteral("de_DE")));
    const QStringList german = catalogueFiles(HostProcess::stageFolder() + "/messages/german");
    EXPECT_EQ(result.events.values("translator-installed", "file"), german + german);
    // The same default locale again: reported with each set of translators.
    EXPECT_EQ(result.events.values("default-locale", "name"), QStringList({"de_DE", "de_DE"}));
}
} // namespace
