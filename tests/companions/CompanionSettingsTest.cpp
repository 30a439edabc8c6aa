// The two switches of the companions, read the way the module reads them: the system-wide
// network setting and the registry value of the collaboration connector.
#include "CompanionSettings.h"

#include "IsolatedHome.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxRegistry.h>

namespace {
void setNetworkSwitch(const IsolatedHome& home, const QVariant& value)
{
    QSettings system(home.folders().systemConfig() + QStringLiteral("/Corvane/Quillon.conf"),
                     QSettings::IniFormat);
    system.setValue(QStringLiteral("Network/premiumnetworkdisable"), value);
}
} // namespace

TEST(CompanionSettings, OnlyYesInAnyCaseWithBlanksAroundSwitchesTheNetworkCompanionsOff)
{
    const QStringList off{"yes", "YES", " YES ", "\tyEs\n", "Yes"};
    const QStringList on{"no", "1", "true", "", "y", "yes please", "ye s", "yes!"};
    for (const QString& value : off + on) {
        IsolatedHome home;
        setNetworkSwitch(home, value);
        EXPECT_EQ(CompanionSettings::networkCompanionsDisabled(), off.contains(value))
            << '"' << value.toStdString() << '"';
    }
}

TEST(CompanionSettings, WithoutTheSettingOrItsGroupTheNetworkCompanionsAreOn)
{
    IsolatedHome home;
    EXPECT_FALSE(CompanionSettings::networkCompanionsDisabled());
    QSettings system(home.folders().systemConfig() + QStringLiteral("/Corvane/Quillon.conf"),
                     QSettings::IniFormat);
    system.setValue(QStringLiteral("premiumnetworkdisable"), QStringLiteral("yes"));
    system.setValue(QStringLiteral("Other/premiumnetworkdisable"), QStringLiteral("yes"));
    system.sync();
    EXPECT_FALSE(CompanionSettings::networkCompanionsDisabled());
}

TEST(CompanionSettings, TheCollaborationConnectorFollowsTheRegistryValueAsABoolean)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("registry.ini"));
    CFxRegistry::setStandInFile(file);
    EXPECT_FALSE(CompanionSettings::collaborationEnabled());
    const QString key =
        QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable");
    for (const auto& [value, enabled] : std::vector<std::pair<QVariant, bool>>{
             {true, true}, {1, true}, {false, false}, {0, false}, {QString(), false}}) {
        QSettings(file, QSettings::IniFormat).setValue(key, value);
        EXPECT_EQ(CompanionSettings::collaborationEnabled(), enabled)
            << value.toString().toStdString();
    }
    // The same value under another key is not the connectors' switch.
    QSettings(file, QSettings::IniFormat).remove(key);
    QSettings(file, QSettings::IniFormat)
        .setValue(QStringLiteral("HKEY_CURRENT_USER/SOFTWARE/Corvane/BfxConnectors/"
                                 "OmniplaneCSEnable"),
                  true);
    EXPECT_FALSE(CompanionSettings::collaborationEnabled());
    CFxRegistry::setStandInFile(QString());
}
