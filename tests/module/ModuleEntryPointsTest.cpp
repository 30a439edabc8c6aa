// The module's two exported entry points, called the way the platform calls them: straight
// from the library, without the dynamic linker in between.
#include "LoadedModule.h"
#include "TestStrings.h"

#include <QFileInfo>

#include <gtest/gtest.h>

#include <OdSharedLibrary.h>
#include <RxDynamicModule.h>

namespace {
// The module's library, opened for the length of a test.
struct ModuleLibrary
{
    ModuleLibrary() { handle = OdSharedLibrary::open(od(path), error); }
    ~ModuleLibrary() { OdSharedLibrary::close(handle); }

    OdRxModule* create(OdModuleHandle& module) const
    {
        auto entry = reinterpret_cast<OdCreateModuleObjectFunction>(
            OdSharedLibrary::resolve(handle, "odrxCreateModuleObject"));
        return entry ? entry(module) : nullptr;
    }

    const QString path = LoadedModule::stageFolder() + QStringLiteral("/ExtCommands.tx");
    OdString error;
    OdModuleHandle handle = nullptr;
};
} // namespace

TEST(ModuleEntryPoints, GiveThePlatformApiVersionTheModuleWasBuiltFor)
{
    ModuleLibrary library;
    auto getVersion = reinterpret_cast<OdGetAPIVersionFunction>(
        OdSharedLibrary::resolve(library.handle, "odrxGetAPIVersion"));
    ASSERT_NE(getVersion, nullptr) << qPrintable(qt(library.error));
    int version[4] = {-1, -1, -1, -1};
    getVersion(version[0], version[1], version[2], version[3]);
    EXPECT_EQ(std::vector<int>(version, version + 4), std::vector<int>({4, 1, 1, 72561}));
}

TEST(ModuleEntryPoints, CreateOneModuleObjectThatTakesOverTheLibraryHandle)
{
    ModuleLibrary library;
    OdModuleHandle first = library.handle;
    OdRxModule* module = library.create(first);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(module->sysData(), library.handle);
    EXPECT_EQ(QFileInfo(qt(module->moduleName())).canonicalFilePath(),
              QFileInfo(library.path).canonicalFilePath());

    OdModuleHandle second = library.handle;
    EXPECT_EQ(library.create(second), module);
    EXPECT_EQ(second, library.handle);

    // References are counted but never delete: the platform decides when the module goes.
    module->addRef();
    module->addRef();
    EXPECT_EQ(module->numRefs(), 2);
    module->release();
    module->release();
    EXPECT_EQ(module->numRefs(), 0);

    module->deleteModule();
    OdModuleHandle afterDeletion = library.handle;
    OdRxModule* fresh = library.create(afterDeletion);
    EXPECT_EQ(afterDeletion, nullptr);
    fresh->deleteModule();
}

TEST(ModuleEntryPoints, HandTheLinkersModuleObjectToALaterCaller)
{
    LoadedModule loaded;
    ModuleLibrary library;
    OdModuleHandle handle = library.handle;
    EXPECT_EQ(library.create(handle), loaded.module());
    EXPECT_EQ(handle, library.handle);
    EXPECT_EQ(loaded.module()->sysData(), library.handle);
}
