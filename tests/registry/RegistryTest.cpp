// The registry seam: values written into the stand-in file under a key path are what a module
// reads back from that key, the way the Windows registry would give them.
#include "IsolatedHome.h"
#include "TestPrinters.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

#include <CFxRegistry.h>

struct KeyPathCase
{
    const char* name;
    const char* keyPath;
    const char* nativePath;
    const char* standInGroup;
};

// How failures and CTest name the case.
void PrintTo(const KeyPathCase& each, std::ostream* out)
{
    *out << each.name;
}

class RegistryKeyPath : public testing::TestWithParam<KeyPathCase>
{};

// The keys the module reads, spelt as callers spell them: the same key for the registry
// (QSettings' native path on Windows) and for the stand-in's group.
TEST_P(RegistryKeyPath, NamesTheSameKeyOnWindowsAndInTheStandIn)
{
    const KeyPathCase& key = GetParam();
    EXPECT_EQ(CFxRegistry::nativeKeyPath(QString::fromLatin1(key.keyPath)),
              QString::fromLatin1(key.nativePath));
    EXPECT_EQ(CFxRegistry::standInGroup(QString::fromLatin1(key.keyPath)),
              QString::fromLatin1(key.standInGroup));
}

INSTANTIATE_TEST_SUITE_P(
    Keys, RegistryKeyPath,
    testing::Values(KeyPathCase{"TrailingSeparator",
                                "HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\",
                                "HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors",
                                "HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"},
                    KeyPathCase{"DotsInAPart",
                                "HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer",
                                "HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer",
                                "HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer"},
                    KeyPathCase{"MixedAndDoubledSeparators",
                                "HKEY_LOCAL_MACHINE/SOFTWARE//Corvane\\\\BfxConnectors/",
                                "HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors",
                                "HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"}));

// What an installer writes on Windows, as the registry hands it to QSettings there: REG_DWORD
// as an int, REG_QWORD as a 64-bit integer, REG_SZ as a string. Written into the stand-in, the
// companions' switch reads as a boolean exactly as the typed registry value does.
class RegistrySwitchValue : public testing::TestWithParam<QVariant>
{};

TEST_P(RegistrySwitchValue, ReadsAsTheRegistrysOwnValueReads)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("registry.ini"));
    CFxRegistry::setStandInFile(file);
    QSettings(file, QSettings::IniFormat)
        .setValue(
            QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable"),
            GetParam());
    const auto key = CFxRegistry::openKey(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\"));
    EXPECT_EQ(key->value(QStringLiteral("OmniplaneCSEnable"), false).toBool(), GetParam().toBool())
        << GetParam().typeName() << " " << qPrintable(GetParam().toString());
    CFxRegistry::setStandInFile(QString());
}

INSTANTIATE_TEST_SUITE_P(Types, RegistrySwitchValue,
                         testing::Values(QVariant(1), QVariant(0), QVariant(qint64(1)),
                                         QVariant(qint64(0)), QVariant(QStringLiteral("true")),
                                         QVariant(QStringLiteral("false")),
                                         QVariant(QStringLiteral("1")),
                                         QVariant(QStringLiteral("0")), QVariant(QString())));

// The registry finds a key whatever the letter case of its parts; so does the stand-in.
TEST(Registry, KeysAreFoundInAnyLetterCase)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("registry.ini"));
    CFxRegistry::setStandInFile(file);
    QSettings(file, QSettings::IniFormat)
        .setValue(QStringLiteral("HKEY_CLASSES_ROOT/vcmodelviewer.VCSTVIEWER/curver/Default"),
                  QStringLiteral("VcModelViewer.VcstViewer.12"));
    EXPECT_EQ(
        CFxRegistry::openKey(QStringLiteral("HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer"))
            ->value(QStringLiteral("Default"))
            .toString(),
        QStringLiteral("VcModelViewer.VcstViewer.12"));
    CFxRegistry::setStandInFile(QString());
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
