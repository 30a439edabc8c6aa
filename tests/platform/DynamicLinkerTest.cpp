// The dynamic linker with the test modules: finding, loading and starting a module, refusing
// what is not a module of this platform, and unloading it so that nothing of it stays.
#include "EventRecorder.h"
#include "MappedLibraries.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <OdError.h>
#include <OdHostCommandStack.h>
#include <OdHostDynamicLinker.h>
#include <OdSharedLibrary.h>

namespace {
QString fixture(const QString& file)
{
    return QDir(QStringLiteral(EC_FIXTURE_DIR)).absoluteFilePath(file);
}

// The copies of ProbeModule's library in the process, by their canonical file names.
QStringList mappedProbes()
{
    QStringList canonical;
    for (const QString& path : MappedLibraries::named(QStringLiteral("ProbeModule.tx")))
        canonical << QFileInfo(path).canonicalFilePath();
    return canonical;
}
} // namespace

class DynamicLinker : public ::testing::Test
{
protected:
    void SetUp() override { linker()->setSearchPath({od(QStringLiteral(EC_FIXTURE_DIR))}); }
    void TearDown() override
    {
        linker()->unloadAll();
        EXPECT_TRUE(linker()->loadedModules().empty());
    }

    static OdHostDynamicLinker* linker() { return odrxHostDynamicLinker(); }

    EventRecorder recorder;
};

TEST_F(DynamicLinker, LoadsAModuleOnceByNameAndUnloadsItWithoutATraceWhenNothingHoldsIt)
{
    OdRxModulePtr module = linker()->loadModule(OdString(L"ProbeModule.tx"));
    ASSERT_FALSE(module.isNull());
    EXPECT_EQ(recorder.events().timeline({"probe step", "module-loaded module"}),
              QStringList({"probe constructed", "module-loaded ProbeModule", "probe initApp"}));
    EXPECT_EQ(module->numRefs(), 1);
    EXPECT_EQ(linker()->loadModule(OdString(L"ProbeModule")), module);
    EXPECT_EQ(linker()->getModule(OdString(L"probemodule")), module);
    EXPECT_EQ(recorder.events().count("probe"), 2);
    EXPECT_EQ(QFileInfo(qt(module->moduleName())).canonicalFilePath(),
              QFileInfo(fixture("ProbeModule.tx")).canonicalFilePath());
    const OdEdCommand* command = odedHostRegCmds()->lookupCmd(OdString(L"PROBE"));
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->module(), module.get());

    // HolderModule keeps a reference to ProbeModule from its start to its deletion.
    linker()->loadModule(OdString(L"HolderModule"));
    module.release();
    recorder.clear();
    EXPECT_FALSE(linker()->unloadModule(OdString(L"PROBEMODULE.TX")));
    EXPECT_EQ(recorder.events().values("module-unload-deferred", "module"),
              QStringList{"ProbeModule"});
    linker()->unloadUnreferenced();
    EXPECT_EQ(recorder.events().count("probe"), 0);
    EXPECT_TRUE(linker()->unloadModule(OdString(L"HolderModule")));
    ASSERT_TRUE(OdSharedLibrary::isLoaded(od(fixture("ProbeModule.tx"))));
    linker()->unloadUnreferenced();
    // The static object's destructor runs only when the library really leaves the process.
    EXPECT_EQ(recorder.events().timeline({"probe step", "module-unloaded module"}),
              QStringList({"module-unloaded HolderModule", "probe uninitApp", "probe destroyed",
                           "probe static-destroyed", "module-unloaded ProbeModule"}));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(fixture("ProbeModule.tx"))));
    EXPECT_EQ(odedHostRegCmds()->lookupCmd(OdString(L"PROBE")), nullptr);
    EXPECT_FALSE(linker()->unloadModule(OdString(L"ProbeModule")));
    EXPECT_EQ(recorder.events().all().last().name, "module-unload-skipped");
}

// ProbeUser links ProbeModule's library by its file name, found beside it; the search path
// names another copy first. Whichever module comes first, the process holds one copy of the
// library, and the linker's module is the one in it.
TEST_F(DynamicLinker, AModuleLinkedByAnotherIsMappedOnceWhicheverIsLoadedFirst)
{
    QTemporaryDir elsewhere;
    // A copy, not a link: the system would know a second name of the same file as the same.
    ASSERT_TRUE(QFile::copy(fixture("ProbeModule.tx"), elsewhere.filePath("ProbeModule.tx")));
    const QString besideUser = QFileInfo(fixture("ProbeModule.tx")).canonicalFilePath();
    const QString first = QFileInfo(elsewhere.filePath("ProbeModule.tx")).canonicalFilePath();
    linker()->setSearchPath({od(elsewhere.path()), od(QStringLiteral(EC_FIXTURE_DIR))});

    ASSERT_FALSE(linker()->loadModule(OdString(L"ProbeUser")).isNull());
    ASSERT_EQ(mappedProbes(), QStringList{besideUser}) << "mapped as the user's dependency";
    OdRxModulePtr probe = linker()->loadModule(OdString(L"ProbeModule"));
    ASSERT_FALSE(probe.isNull());
    EXPECT_EQ(mappedProbes(), QStringList{besideUser});
    EXPECT_EQ(QFileInfo(qt(probe->moduleName())).canonicalFilePath(), besideUser);
    EXPECT_EQ(recorder.events().timeline({"probe step", "probe-user calls"}),
              QStringList({"probe-user ProbeModule", "probe constructed", "probe initApp"}));
    probe.release();
    recorder.clear();
    linker()->unloadAll();
    EXPECT_TRUE(mappedProbes().isEmpty());
    EXPECT_EQ(recorder.events().timeline({"probe step", "module-unloaded module"}),
              QStringList({"probe uninitApp", "probe destroyed", "module-unloaded ProbeModule",
                           "probe static-destroyed", "module-unloaded ProbeUser"}))
        << "the library goes with the last module that holds it";

    ASSERT_FALSE(linker()->loadModule(OdString(L"ProbeModule")).isNull());
    ASSERT_FALSE(linker()->loadModule(OdString(L"ProbeUser")).isNull());
    EXPECT_EQ(mappedProbes(), QStringList{first}) << "the user's dependency is the module loaded";
    EXPECT_EQ(recorder.events().values("probe-user", "calls"), QStringList{"ProbeModule"});
}

TEST_F(DynamicLinker, RefusesWhatItCannotLoadSilentlyOrWithTheReason)
{
    QTemporaryDir impostor;
    ASSERT_TRUE(QFile::copy(fixture("NotAModule.tx"), impostor.filePath("ProbeModule.tx")));
    linker()->setSearchPath({od(impostor.path()), od(QStringLiteral(EC_FIXTURE_DIR))});
    const struct
    {
        const char* module;
        QString reason;
    } cases[] = {
        {"Nowhere", "module Nowhere not found (looked for Nowhere.tx in: " + impostor.path()},
        {"ForeignApiModule", "was built for platform API 3.9.0.100, this platform is 4.1"},
        {"NotAModule", fixture("NotAModule.tx") + " is not a platform module"},
        {"EmptyModule", "module EmptyModule created no module object"},
        // The search path is tried in order: a library of that name earlier in it is taken.
        {"ProbeModule", impostor.filePath("ProbeModule.tx") + " is not a platform module"},
    };
    for (const auto& each : cases) {
        recorder.clear();
        EXPECT_TRUE(linker()->loadModule(od(each.module)).isNull());
        const QString reason = recorder.events().values("module-load-failed", "reason").value(0);
        EXPECT_TRUE(reason.contains(each.reason)) << qPrintable(reason);
        try {
            linker()->loadModule(od(each.module), false);
            ADD_FAILURE() << each.module << " loaded";
        } catch (const OdError& error) {
            EXPECT_EQ(qt(error.description()), reason);
        }
    }
    for (const QString& file : {fixture("ForeignApiModule.tx"), fixture("NotAModule.tx"),
                                fixture("EmptyModule.tx"), impostor.filePath("ProbeModule.tx")})
        EXPECT_FALSE(OdSharedLibrary::isLoaded(od(file))) << qPrintable(file);
    EXPECT_TRUE(linker()->loadedModules().empty());
}

TEST_F(DynamicLinker, UnloadAllGoesLatestFirstAndTakesOffTheCommandsAModuleLeftBehind)
{
    // ExtCommands registers its Help-menu commands with a main window, which also makes it load
    // and hold the online connector, and takes them off only when the window goes.
    linker()->setSearchPath({od(QStringLiteral(EC_FIXTURE_DIR)), od(QStringLiteral(EC_STAGE_DIR))});
    linker()->loadModule(OdString(L"ExtCommands"));
    GetFxHostServices()->MainFrameCreated(nullptr);
    linker()->loadModule(OdString(L"ProbeModule"));
    ASSERT_NE(odedHostRegCmds()->lookupCmd(OdString(L"CHECKFORUPDATES")), nullptr);
    recorder.clear();
    linker()->unloadAll();
    EXPECT_EQ(
        recorder.events().timeline({"command-removed cause", "module-unloaded module"}),
        QStringList({"command-removed null", "module-unloaded ProbeModule", "command-removed null",
                     "command-removed null", "command-removed null",
                     "command-removed module-unloaded", "command-removed module-unloaded",
                     "module-unloaded ExtCommands", "module-unloaded QNTForgeportConnector"}));
    EXPECT_EQ(odedHostRegCmds()->lookupCmd(OdString(L"CHECKFORUPDATES")), nullptr);
}
