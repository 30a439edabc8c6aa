// The host's string: comparisons with and without letter case, and lossless conversions to
// and from Qt's and the platform's strings, letters beyond ASCII included.
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
    EXPECT_FALSE(upper == mixed);
    EXPECT_FALSE(mixed.equalNoCase(CFxString("ID_MnHelp2")));

    EXPECT_TRUE(CFxString("ÄRGER ΣΥΝ").equalNoCase(CFxString(L"ärger συν")));
    EXPECT_NE(CFxString("ÄRGER").compare(CFxString("ärger")), 0);
}

TEST(CFxStringTest, ConvertsToAndFromQtAndPlatformStringsWithoutLoss)
{
    const QString text = QString::fromUtf8("Größe 図面 \xF0\x9F\x93\x90");
    const CFxString fromQt(text);
    EXPECT_EQ(fromQt.toQString(), text);
    EXPECT_EQ(fromQt.toOdString().wide(), std::wstring(L"Größe 図面 \U0001F4D0"));
    EXPECT_EQ(CFxString(fromQt.toOdString()), fromQt);
    EXPECT_EQ(CFxString("Größe 図面 \xF0\x9F\x93\x90"), fromQt);
    EXPECT_EQ(CFxString(L"Größe 図面 \U0001F4D0"), fromQt);

    EXPECT_EQ((CFxString("Maß") + CFxString(L"stab")).toQString(), QString::fromUtf8("Maßstab"));
    EXPECT_TRUE(CFxString(static_cast<const wchar_t*>(nullptr)).isEmpty());
}
