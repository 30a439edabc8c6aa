// The language table's look-ups and its rules for "System", on stand-in operating systems.
#include "locale/LanguageTable.h"

#include "FakeSystemLocale.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {
struct SystemCase
{
    const char* system;
    int systemLanguageId;
    bool simplified;
    bool traditional;
};

class SystemLanguageTest : public ::testing::TestWithParam<SystemCase>
{};

TEST_P(SystemLanguageTest, TheSystemLocaleGivesOneEntryWithTheChineseCountryRule)
{
    const SystemCase& expected = GetParam();
    const FakeSystemLocale system(QString::fromLatin1(expected.system));
    EXPECT_EQ(LanguageTable().systemLanguageId(), expected.systemLanguageId);
    EXPECT_EQ(LanguageTable::isSimplifiedChineseSystem(), expected.simplified);
    EXPECT_EQ(LanguageTable::isTraditionalChineseSystem(), expected.traditional);
}

INSTANTIATE_TEST_SUITE_P(
    Systems, SystemLanguageTest,
    ::testing::Values(SystemCase{"zh_CN", 9, true, false}, SystemCase{"zh_TW", 8, false, true},
                      SystemCase{"zh_SG", 8, false, true}, SystemCase{"de_AT", 1, false, false},
                      SystemCase{"pt_PT", 19, false, false}, SystemCase{"C", 0, false, false},
                      // Not in the table: English by the default entry.
                      SystemCase{"sv_SE", 2, false, false}));

TEST(LanguageTableTest, UnknownLanguagesGiveTheDefaultEntryWithoutAFolderName)
{
    const FakeSystemLocale system(QStringLiteral("en_GB"));
    const LanguageTable table;
    EXPECT_EQ(&table.entryById(99), &table.defaultEntry());
    EXPECT_EQ(&table.entryForQtLanguage(QLocale::Swedish), &table.defaultEntry());
    EXPECT_EQ(table.defaultEntry().id, 2);
    EXPECT_EQ(table.defaultEntry().qtLanguage, QLocale::English);
    EXPECT_EQ(table.defaultEntry().folder.toQString(), QString(QDir::separator()));
}

TEST(LanguageTableTest, ChineseIsDecidedByTheSystemsCountryNotByTheLanguageAskedFor)
{
    const LanguageTable table;
    {
        const FakeSystemLocale system(QStringLiteral("de_DE"));
        // Both Chinese entries share the Qt language; the later one, simplified, wins.
        EXPECT_EQ(table.entryForQtLanguage(QLocale::Chinese).id, 9);
    }
    const FakeSystemLocale system(QStringLiteral("zh_TW"));
    EXPECT_EQ(table.entryForQtLanguage(QLocale::German).id, 8);
}
} // namespace
