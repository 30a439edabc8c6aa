// The module's two exported entry points, called the way the platform calls them: straight
// from the library, without the dynamic linker in between.
#include "LoadedModule.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <gtest/gtest.h>

#include <OdSharedLibrary.h>
#include <RxDynamicModule.h>

namespace {
// The module's library, opened for the length of a test.
struct ModuleLibrary
{
    ModuleLibrary()
    {
        handle = OdSharedLibrary::open(od(LoadedModule::stageFolder() + "/ExtCommands.tx"), error);
    }
    ~ModuleLibrary() { OdSharedLibrary::close(handle); }

    OdRxModule* create(OdModuleHandle& module) const
    {
        auto entry = reinterpret_cast<OdCreateModuleObjectFunction>(
            OdSharedLibrary::resolve(handle, "odrxCreateModuleObject"));
        return entry ? entry(module) : nullptr;
    }

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

    OdModuleHandle second = library.handle;
    EXPECT_EQ(library.create(second), module);
    EXPECT_EQ(second, library.handle);

    // Once the platform has deleted it, the next call creates a new one.
    module->deleteModule();
    OdModuleHandle afterDeletion = library.handle;
    OdRxModule* fresh = library.create(afterDeletion);
    EXPECT_EQ(afterDeletion, nullptr);
    fresh->deleteModule();
}
