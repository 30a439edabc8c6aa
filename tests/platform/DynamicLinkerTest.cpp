// The dynamic linker with the test modules: finding, loading and starting a module, refusing
// what is not a module of this platform, and unloading it so that nothing of it stays.
#include "EventRecorder.h"
#include "TestStrings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <OdEdCommandStack.h>
#include <OdError.h>
#include <OdRxDynamicLinker.h>
#include <OdSharedLibrary.h>

namespace {
QString fixture(const QString& file)
{
    return QDir(QStringLiteral(EC_FIXTURE_DIR)).absoluteFilePath(file);
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

    static OdRxDynamicLinker* linker() { return odrxDynamicLinker(); }

    // The reason the linker gives for refusing `name`.
    static QString refusal(const QString& name)
    {
        try {
            linker()->loadModule(od(name), false);
        } catch (const OdError& error) {
            return qt(error.description());
        }
        return QStringLiteral("<loaded>");
    }

    QStringList steps(const QStringList& events) const
    {
        return recorder.events().describe(events, QStringLiteral("step"));
    }

    EventRecorder recorder;
};

TEST_F(DynamicLinker, LoadsAModuleOnceByNameAndUnloadsItWithoutATrace)
{
    OdRxModulePtr module = linker()->loadModule(OdString(L"ProbeModule.tx"));
    ASSERT_FALSE(module.isNull());
    EXPECT_EQ(steps({"probe", "module-loaded"}),
              QStringList({"probe:constructed", "module-loaded", "probe:initApp"}));
    EXPECT_EQ(module->numRefs(), 1);

    EXPECT_EQ(linker()->loadModule(OdString(L"ProbeModule")), module);
    EXPECT_EQ(linker()->getModule(OdString(L"probemodule")), module);
    EXPECT_EQ(recorder.events().count("probe"), 2);
    EXPECT_EQ(QFileInfo(qt(module->moduleName())).canonicalFilePath(),
              QFileInfo(fixture("ProbeModule.tx")).canonicalFilePath());

    OdEdCommand* command = odedRegCmds()->lookupCmd(OdString(L"PROBE"));
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->module(), module.get());

    // Unloading stops and deletes the module and takes its library out of the process.
    module.release();
    const QString path = fixture("ProbeModule.tx");
    ASSERT_TRUE(OdSharedLibrary::isLoaded(od(path)));
    recorder.clear();

    EXPECT_TRUE(linker()->unloadModule(OdString(L"PROBEMODULE.TX")));
    // The static object's destructor runs only when the library really leaves the process.
    EXPECT_EQ(steps({"probe", "module-unloaded"}),
              QStringList({"probe:uninitApp", "probe:destroyed", "probe:static-destroyed",
                           "module-unloaded"}));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(path)));
    EXPECT_EQ(odedRegCmds()->lookupCmd(OdString(L"PROBE")), nullptr);

    EXPECT_FALSE(linker()->unloadModule(OdString(L"ProbeModule")));
    EXPECT_EQ(recorder.events().all().last().name, "module-unload-skipped");
}

TEST_F(DynamicLinker, SearchPathIsTriedInOrder)
{
    QTemporaryDir empty;
    QTemporaryDir impostor;
    ASSERT_TRUE(QFile::copy(fixture("NotAModule.tx"), impostor.filePath("ProbeModule.tx")));

    linker()->setSearchPath({od(empty.path()), od(QStringLiteral(EC_FIXTURE_DIR))});
    EXPECT_FALSE(linker()->loadModule(OdString(L"ProbeModule")).isNull());
    linker()->unloadAll();

    linker()->setSearchPath({od(impostor.path()), od(QStringLiteral(EC_FIXTURE_DIR))});
    const QString reason = refusal("ProbeModule");
    EXPECT_TRUE(reason.contains(impostor.filePath("ProbeModule.tx"))) << qPrintable(reason);
    EXPECT_TRUE(reason.contains("is not a platform module")) << qPrintable(reason);
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(impostor.filePath("ProbeModule.tx"))));
}

TEST_F(DynamicLinker, RefusesWhatItCannotLoadSilentlyOrWithTheReason)
{
    EXPECT_TRUE(linker()->loadModule(OdString(L"Nowhere")).isNull());
    const auto failed = recorder.events().named("module-load-failed");
    ASSERT_EQ(failed.size(), 1);
    EXPECT_EQ(failed[0].field("module"), "Nowhere");
    EXPECT_TRUE(failed[0].field("reason").contains(QStringLiteral(EC_FIXTURE_DIR)));

    EXPECT_TRUE(
        refusal("Nowhere").startsWith("module Nowhere not found (looked for Nowhere.tx in"));
    EXPECT_TRUE(refusal("ForeignApiModule")
                    .contains("was built for platform API 3.9.0.100, this platform is 4.1"));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(fixture("ForeignApiModule.tx"))));
    EXPECT_TRUE(refusal("NotAModule").contains("is not a platform module"));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(fixture("NotAModule.tx"))));
    EXPECT_TRUE(refusal("EmptyModule").contains("created no module object"));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(fixture("EmptyModule.tx"))));
    EXPECT_EQ(recorder.events().count("module-loaded"), 0);

    linker()->setSearchPath({});
    EXPECT_TRUE(refusal("ProbeModule").contains("no folder"));
}

TEST_F(DynamicLinker, UnloadOfAReferencedModuleWaitsForTheLastReference)
{
    // HolderModule keeps a reference to ProbeModule from its start to its deletion.
    linker()->loadModule(OdString(L"HolderModule"));
    const QString probePath = fixture("ProbeModule.tx");
    recorder.clear();

    EXPECT_FALSE(linker()->unloadModule(OdString(L"ProbeModule")));
    const auto deferred = recorder.events().named("module-unload-deferred");
    ASSERT_EQ(deferred.size(), 1);
    EXPECT_EQ(deferred[0].fields.value("references").toInt(), 1);
    linker()->unloadUnreferenced();
    EXPECT_EQ(recorder.events().count("probe"), 0);

    EXPECT_TRUE(linker()->unloadModule(OdString(L"HolderModule")));
    EXPECT_TRUE(OdSharedLibrary::isLoaded(od(probePath)));
    linker()->unloadUnreferenced();
    EXPECT_EQ(recorder.events().values("module-unloaded", "module"),
              QStringList({"HolderModule", "ProbeModule"}));
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(probePath)));

    // Loading the module again withdraws the request.
    linker()->loadModule(OdString(L"HolderModule"));
    linker()->unloadModule(OdString(L"ProbeModule"));
    linker()->loadModule(OdString(L"ProbeModule"));
    linker()->unloadModule(OdString(L"HolderModule"));
    linker()->unloadUnreferenced();
    EXPECT_EQ(linker()->loadedModules(), std::vector<OdString>({OdString(L"ProbeModule")}));
}

TEST_F(DynamicLinker, UnloadAllGoesLatestFirstAndRemembersWhatIsStillReferenced)
{
    linker()->setSearchPath({od(QStringLiteral(EC_FIXTURE_DIR)), od(QStringLiteral(EC_STAGE_DIR))});
    linker()->loadModule(OdString(L"ExtCommands"));
    linker()->loadModule(OdString(L"ProbeModule"));
    linker()->unloadAll();
    EXPECT_EQ(recorder.events().values("module-unloaded", "module"),
              QStringList({"ProbeModule", "ExtCommands"}));

    recorder.clear();
    linker()->loadModule(OdString(L"ProbeModule"));
    OdRxModulePtr holder = linker()->loadModule(OdString(L"HolderModule"));
    linker()->unloadAll();
    EXPECT_EQ(recorder.events().values("module-unload-deferred", "module"),
              QStringList({"ProbeModule", "HolderModule"}));
    EXPECT_EQ(recorder.events().count("module-unloaded"), 0);

    holder.release();
    linker()->unloadUnreferenced();
    EXPECT_EQ(recorder.events().values("module-unloaded", "module"),
              QStringList({"HolderModule", "ProbeModule"}));
}
