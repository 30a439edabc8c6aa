// The host's string: comparisons with and without letter case, and lossless conversions.
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxString.h>

TEST(CFxStringTest, EqualNoCaseIgnoresLetterCaseWhereCompareDoesNot)
{
    const CFxString upper(L"ID_MNHELP");
    const CFxString mixed("ID_MnHelp");
    EXPECT_TRUE(upper.equalNoCase(mixed));
    EXPECT_LT(upper.compare(mixed), 0);
    EXPECT_GT(mixed.compare(upper), 0);
    EXPECT_EQ(mixed.compare(CFxString(QStringLiteral("ID_MnHelp"))), 0);
    EXPECT_FALSE(mixed.equalNoCase(CFxString("ID_MnHelp2")));

    EXPECT_TRUE(CFxString("ÄRGER ΣΥΝ").equalNoCase(CFxString(L"ärger συν")));
    EXPECT_NE(CFxString("ÄRGER").compare(CFxString("ärger")), 0);
}

TEST(CFxStringTest, ConvertsToAndFromQtAndPlatformStringsBeyondTheBasicPlane)
{
    const QString text = QString::fromUtf8("Größe 図面 \xF0\x9F\x93\x90");
    EXPECT_EQ(CFxString(text).toOdString().wide(), std::wstring(L"Größe 図面 \U0001F4D0"));
    EXPECT_EQ(CFxString(CFxString(text).toOdString()).toQString(), text);
    EXPECT_EQ(CFxString("Größe 図面 \xF0\x9F\x93\x90").toQString(), text);
    EXPECT_EQ(toQString(toOdString(text)), text);
}
