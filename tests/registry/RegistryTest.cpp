// The registry seam: values written into the stand-in file under a key path are what a module
// reads back from that key, the way the Windows registry would give them.
#include "IsolatedHome.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxRegistry.h>

TEST(Registry, KeyPathsAreGroupsOfTheStandInFile)
{
    EXPECT_EQ(CFxRegistry::standInGroup(
                  QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\")),
              QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"));
    EXPECT_EQ(CFxRegistry::standInGroup(
                  QStringLiteral("HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer")),
              QStringLiteral("HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer"));
}

TEST(Registry, ValuesWrittenByAnInstallerAreReadBackThroughTheKey)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("registry.ini"));
    CFxRegistry::setStandInFile(file);
    {
        QSettings installer(file, QSettings::IniFormat);
        installer.setValue(
            QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable"),
            true);
        installer.setValue(
            QStringLiteral("HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer/Default"),
            QStringLiteral("VcModelViewer.VcstViewer.12"));
    }
    EXPECT_TRUE(CFxRegistry::openKey(
                    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\"))
                    ->value(QStringLiteral("OmniplaneCSEnable"))
                    .toBool());
    EXPECT_EQ(
        CFxRegistry::openKey(QStringLiteral("HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer"))
            ->value(QStringLiteral("Default"))
            .toString(),
        QStringLiteral("VcModelViewer.VcstViewer.12"));
    const auto missing =
        CFxRegistry::openKey(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Nobody"));
    EXPECT_FALSE(missing->contains(QStringLiteral("OmniplaneCSEnable")));
    CFxRegistry::setStandInFile(QString());
}

TEST(Registry, WithoutAChoiceTheStandInLivesInTheUsersConfiguration)
{
    IsolatedHome home;
    EXPECT_EQ(CFxRegistry::standInFile(),
              home.folders().configHome() + QStringLiteral("/Corvane/registry.ini"));
}
