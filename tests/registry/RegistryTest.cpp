// The registry where the system has none: values written into the stand-in file under a key
// path are what the module reads back from that key (through its own registry code, as it
// reads them outside Windows), the way the Windows registry would give them.
#include "IsolatedHome.h"
#include "TestPrinters.h"
#include "common/SystemRegistry.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

#include <RegistryStandIn.h>

namespace {
// A stand-in file of the test's own, chosen for this process as the host chooses it.
class StandInFile
{
public:
    StandInFile() { RegistryStandIn::useFile(path()); }
    ~StandInFile() { RegistryStandIn::useFile(QString()); }

    QString path() const { return m_folder.filePath(QStringLiteral("registry.ini")); }
    // What an installer writes, by the file's own group names.
    void write(const QString& group, const QVariant& value) const
    {
        QSettings(path(), QSettings::IniFormat).setValue(group, value);
    }

private:
    QTemporaryDir m_folder;
};

const QString kConnectors =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\");
const wchar_t kCurrentVersion[] = L"VcModelViewer.VcstViewer\\CurVer";
} // namespace

struct KeyPathCase
{
    const char* name;
    const char* keyPath;
    const char* group;
};

// How failures and CTest name the case.
void PrintTo(const KeyPathCase& each, std::ostream* out)
{
    *out << each.name;
}

class RegistryKeyPath : public testing::TestWithParam<KeyPathCase>
{};

// The keys the module reads, spelt as callers spell them, name one group of the file.
TEST_P(RegistryKeyPath, NamesOneGroupOfTheFile)
{
    EXPECT_EQ(RegistryStandIn::group(QString::fromLatin1(GetParam().keyPath)),
              QString::fromLatin1(GetParam().group));
}

INSTANTIATE_TEST_SUITE_P(
    Keys, RegistryKeyPath,
    testing::Values(KeyPathCase{"TrailingSeparator",
                                "HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\",
                                "HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"},
                    KeyPathCase{"DotsInAPart",
                                "HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer",
                                "HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer"},
                    KeyPathCase{"MixedAndDoubledSeparators",
                                "HKEY_LOCAL_MACHINE/SOFTWARE//Corvane\\\\BfxConnectors/",
                                "HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors"}));

// What an installer writes on Windows, as the registry hands it to QSettings there: REG_DWORD
// as an int, REG_QWORD as a 64-bit integer, REG_SZ as a string. Written into the stand-in, the
// companions' switch reads as a boolean exactly as the typed registry value does.
class RegistrySwitchValue : public testing::TestWithParam<QVariant>
{};

TEST_P(RegistrySwitchValue, ReadsAsTheRegistrysOwnValueReads)
{
    const StandInFile file;
    file.write(
        QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable"),
        GetParam());
    EXPECT_EQ(
        SystemRegistry::value(kConnectors, QStringLiteral("OmniplaneCSEnable"), false).toBool(),
        GetParam().toBool())
        << GetParam().typeName() << " " << qPrintable(GetParam().toString());
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
    const StandInFile file;
    file.write(QStringLiteral("HKEY_CLASSES_ROOT/vcmodelviewer.VCSTVIEWER/curver/Default"),
               QStringLiteral("VcModelViewer.VcstViewer.12"));
    file.write(
        QStringLiteral("hkey_local_machine/Software/CORVANE/bfxconnectors/OmniplaneCSEnable"), 1);
    EXPECT_EQ(SystemRegistry::classesRootDefault(kCurrentVersion),
              QStringLiteral("VcModelViewer.VcstViewer.12"));
    EXPECT_TRUE(
        SystemRegistry::value(kConnectors, QStringLiteral("OmniplaneCSEnable"), false).toBool());
}

TEST(Registry, WhatIsNotThereReadsAsMissing)
{
    const StandInFile file;
    file.write(QStringLiteral("HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/Other/Default"),
               QStringLiteral("VcModelViewer.VcstViewer.12"));
    file.write(QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/Other"), true);
    EXPECT_TRUE(SystemRegistry::classesRootDefault(kCurrentVersion).isNull());
    EXPECT_EQ(SystemRegistry::value(kConnectors, QStringLiteral("OmniplaneCSEnable"), 7), 7);
    EXPECT_EQ(SystemRegistry::value(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Nobody"),
                                    QStringLiteral("Other"), QVariant()),
              QVariant());
}

// The file is the process's: chosen before readers come, found by every reader, and without a
// choice the one in the user's configuration.
TEST(Registry, ReadersFindTheFileChosenForTheProcessOrTheUsersOwn)
{
    const IsolatedHome home;
    const QString usersOwn = home.folders().configHome() + QStringLiteral("/Corvane/registry.ini");
    EXPECT_EQ(RegistryStandIn::file(), usersOwn);
    QSettings(usersOwn, QSettings::IniFormat)
        .setValue(QStringLiteral("HKEY_CLASSES_ROOT/VcModelViewer.VcstViewer/CurVer/Default"),
                  QStringLiteral("VcModelViewer.VcstViewer.10"));
    EXPECT_EQ(SystemRegistry::classesRootDefault(kCurrentVersion),
              QStringLiteral("VcModelViewer.VcstViewer.10"));
    {
        const StandInFile chosen;
        EXPECT_EQ(RegistryStandIn::file(), chosen.path());
        EXPECT_TRUE(SystemRegistry::classesRootDefault(kCurrentVersion).isNull());
    }
    EXPECT_EQ(RegistryStandIn::file(), usersOwn);
}
