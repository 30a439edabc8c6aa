// The language table's rules on operating-system locales of every kind: which entry the
// system's language is, Chinese told apart by the country alone, and which entry the host's
// setting stands for.
#include "locale/LanguageTable.h"

#include "TestPrinters.h"

#include <QDir>

#include <gtest/gtest.h>

#include <CFxHostServices.h>

#include <ostream>

namespace {
struct SystemCase
{
    const char* name;
    QLocale locale;
    int systemLanguageId;
    bool simplified;
    bool traditional;
};

// How failures and CTest name the case.
void PrintTo(const SystemCase& each, std::ostream* out)
{
    *out << each.name;
}

class SystemLanguage : public ::testing::TestWithParam<SystemCase>
{};

TEST_P(SystemLanguage, IsTheEntryOfTheSystemsLanguageWithChineseToldApartByTheCountry)
{
    const LanguageTable table(GetParam().locale);
    EXPECT_EQ(table.systemLanguageId(), GetParam().systemLanguageId);
    EXPECT_EQ(table.isSimplifiedChineseSystem(), GetParam().simplified);
    EXPECT_EQ(table.isTraditionalChineseSystem(), GetParam().traditional);
    EXPECT_EQ(table.entryForQtLanguage(GetParam().locale.language()).id,
              GetParam().systemLanguageId);
}

INSTANTIATE_TEST_SUITE_P(
    Locales, SystemLanguage,
    ::testing::Values(
        SystemCase{"German", QLocale(QLocale::German, QLocale::Germany), 1, false, false},
        SystemCase{"GermanOfAustria", QLocale(QLocale::German, QLocale::Austria), 1, false, false},
        // Not in the table: the default entry, English.
        SystemCase{"Swedish", QLocale(QLocale::Swedish, QLocale::Sweden), 2, false, false},
        // The "C" locale is the "System" entry itself.
        SystemCase{"C", QLocale::c(), 0, false, false},
        SystemCase{"ChineseOfChina", QLocale(QLocale::Chinese, QLocale::China), 9, true, false},
        SystemCase{"ChineseOfTaiwan", QLocale(QLocale::Chinese, QLocale::Taiwan), 8, false, true},
        SystemCase{"ChineseOfHongKong", QLocale(QLocale::Chinese, QLocale::HongKong), 8, false,
                   true},
        // Singapore writes the simplified script: only the country counts.
        SystemCase{"ChineseOfSingapore", QLocale(QLocale::Chinese, QLocale::Singapore), 8, false,
                   true}));

// On a Chinese system the language asked for is not looked at; elsewhere it is all that counts.
TEST(LanguageForQtLanguage, OnAChineseSystemIsTheSystemsChineseWhateverLanguageIsAskedFor)
{
    const LanguageTable taiwan(QLocale(QLocale::Chinese, QLocale::Taiwan));
    EXPECT_EQ(taiwan.entryForQtLanguage(QLocale::German).id, 8);
    const LanguageTable china(QLocale(QLocale::Chinese, QLocale::China));
    EXPECT_EQ(china.entryForQtLanguage(QLocale::French).id, 9);

    const LanguageTable germany(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(germany.entryForQtLanguage(QLocale::French).id, 7);
    // Both Chinese entries are of one Qt language: the later, simplified Chinese, is found.
    EXPECT_EQ(germany.entryForQtLanguage(QLocale::Chinese).id, 9);
    const LanguageEntry& unknown = germany.entryForQtLanguage(QLocale::Swedish);
    EXPECT_EQ(unknown.id, 2);
    EXPECT_EQ(unknown.qtLanguage, QLocale::English);
    EXPECT_EQ(unknown.folder.toQString(), QString(QDir::separator()));
}

// The host's setting, played through the host's side of the system services.
class CurrentLanguage : public ::testing::Test
{
protected:
    ~CurrentLanguage() override { GetFxHostServices()->SetCurrentLanguageId(m_saved); }

    static QString folderFor(int hostSetting, const QLocale& system)
    {
        GetFxHostServices()->SetCurrentLanguageId(hostSetting);
        return QDir::fromNativeSeparators(LanguageTable(system).currentEntry().folder.toQString());
    }

private:
    int m_saved = GetFxHostServices()->GetCurrentLanguageId();
};

// Kept: docs/lifecycle.md, rows "Language folders" and "Doubled slash".
TEST_F(CurrentLanguage, SystemIsTheSystemsLanguageAndAnyOtherSettingIsItsOwnEntry)
{
    const QLocale hongKong(QLocale::Chinese, QLocale::HongKong);
    EXPECT_EQ(folderFor(0, hongKong), "/chinese/QObject::traditional");
    EXPECT_EQ(folderFor(0, QLocale(QLocale::Chinese, QLocale::China)), "/chinese/simplified");
    EXPECT_EQ(folderFor(0, QLocale(QLocale::German, QLocale::Germany)), "/german");
    // An unknown system language falls to the default entry, whose id finds "English".
    EXPECT_EQ(folderFor(0, QLocale(QLocale::Swedish, QLocale::Sweden)), "/english");
    EXPECT_EQ(folderFor(0, QLocale::c()), "/");
    // The system is not consulted for any other setting.
    EXPECT_EQ(folderFor(1, hongKong), "/german");
    EXPECT_EQ(folderFor(9, hongKong), "/chinese/simplified");
    EXPECT_EQ(folderFor(8, QLocale(QLocale::German, QLocale::Germany)),
              "/chinese/QObject::traditional");
    // A setting the table lacks is the default entry: English, with an empty folder name.
    EXPECT_EQ(folderFor(99, hongKong), "/");
    GetFxHostServices()->SetCurrentLanguageId(99);
    EXPECT_EQ(LanguageTable(hongKong).currentEntry().qtLanguage, QLocale::English);
}
} // namespace
