// The automation servers that the version discovery tries, one per viewer version: on Windows
// the identifier is a COM ProgID, elsewhere it names a session-bus service. Each must be valid
// where it is used, and no two versions may share one.
#include "TestPrinters.h"

#include <QRegularExpression>
#include <QString>

#include <gtest/gtest.h>

#include <VcModelViewerAutomation.h>

namespace Automation = VcModelViewerAutomation;

class AutomationIdentifier : public testing::TestWithParam<int>
{};

// A ProgID: at most 39 characters, letters, digits and periods, not starting with a digit.
TEST_P(AutomationIdentifier, IsAValidProgIdEndingInItsVersion)
{
    const QString identifier = Automation::serverIdentifier(GetParam());
    EXPECT_LE(identifier.size(), 39) << qPrintable(identifier);
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^[A-Za-z][A-Za-z0-9.]*$")).match(identifier).hasMatch())
        << qPrintable(identifier);
    bool ok = false;
    EXPECT_EQ(identifier.section(QLatin1Char('.'), -1).toInt(&ok), GetParam());
    EXPECT_TRUE(ok) << qPrintable(identifier);
}

// A well-known bus name: at most 255 characters, two elements or more, none empty or starting
// with a digit, each of letters, digits, "_" and "-".
TEST_P(AutomationIdentifier, NamesAValidBusNameOfItsOwn)
{
    const QString name = Automation::busName(Automation::serverIdentifier(GetParam()));
    EXPECT_LE(name.size(), 255);
    const QStringList elements = name.split(QLatin1Char('.'));
    EXPECT_GE(elements.size(), 2) << qPrintable(name);
    const QRegularExpression element(QStringLiteral("^[A-Za-z_-][A-Za-z0-9_-]*$"));
    for (const QString& part : elements)
        EXPECT_TRUE(element.match(part).hasMatch()) << qPrintable(name);
    EXPECT_NE(name, Automation::busName(Automation::serverIdentifier(GetParam() + 1)));
    EXPECT_NE(name, Automation::busName(Automation::serverIdentifier(GetParam() * 10)));
}

INSTANTIATE_TEST_SUITE_P(Versions, AutomationIdentifier,
                         testing::Values(Automation::firstVersion, 10, 12, 99, 1000, 214748364));
