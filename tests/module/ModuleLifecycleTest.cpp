// The real module loaded through the platform's dynamic linker: what its start lends to the
// host, that its stop takes all of it back, and what its commands answer.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestStrings.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <CFxCommand.h>
#include <CFxCommandContext.h>
#include <CFxSystemServices.h>
#include <OdEdCommandStack.h>
#include <OdEditor.h>
#include <OdRxDynamicLinker.h>
#include <OdSharedLibrary.h>

#include <optional>
#include <typeinfo>

namespace {
// The editor reactor whose class the module's library defines.
OdEditorReactor* reactorOf(OdRxModule* module)
{
    OdEditorReactor* found = nullptr;
    odedEditor()->notify([&](OdEditorReactor* reactor) {
        if (odrxDynamicLinker()->moduleContaining(&typeid(*reactor)) == module)
            found = reactor;
    });
    return found;
}
} // namespace

class ModuleLifecycle : public ::testing::Test
{
protected:
    void SetUp() override { LoadedModule::useFolder(); }

    IsolatedHome home;
    EventRecorder recorder;
    std::optional<LoadedModule> loaded;
};

TEST_F(ModuleLifecycle, StartAttachesTheEditorReactorAndRegistersThreeCommandsInOrder)
{
    const std::vector<OdEdCommand*> before = odedRegCmds()->commands();
    loaded.emplace();

    EXPECT_EQ(recorder.events().describe({"module-loaded", "reactor-added", "command-added"},
                                         QStringLiteral("kind")),
              QStringList({"module-loaded", "reactor-added:editor", "command-added",
                           "command-added", "command-added", "reactor-added:document-manager"}));
    EXPECT_EQ(recorder.events().values("command-added", "name"),
              QStringList({"_Home", "_Community", "_VIEWCAST"}));
    EXPECT_EQ(recorder.events().values("command-added", "local"),
              QStringList({"Home", "Community", "VIEWCAST"}));

    const std::vector<OdEdCommand*> after = odedRegCmds()->commands();
    ASSERT_EQ(after.size(), before.size() + 3);
    for (std::size_t i = before.size(); i < after.size(); ++i)
        EXPECT_EQ(after[i]->module(), loaded->module()) << qPrintable(qt(after[i]->localName()));
    EXPECT_NE(reactorOf(loaded->module()), nullptr);

    for (const char* hidden : {"TUTORIAL", "_TUTORIAL", "PLOT_PRONTO", "_PLOT_PRONTO"})
        EXPECT_EQ(odedRegCmds()->lookupCmd(od(hidden)), nullptr) << hidden;
}

TEST_F(ModuleLifecycle, CommandsRunByLocalOrGlobalNameAndCompleteNormally)
{
    loaded.emplace();
    for (const char* name :
         {"Home", "_Home", "HOME", "Community", "_community", "VIEWCAST", "_VIEWCAST"}) {
        OdStaticRxObject<CFxCommandContext> context(QStringList{}, nullptr);
        EXPECT_TRUE(odedRegCmds()->executeCommand(od(name), &context)) << name;
        EXPECT_EQ(context.result(), RTNORM) << name;
    }
}

TEST_F(ModuleLifecycle, StopTakesBackEverythingTheStartLent)
{
    loaded.emplace();
    const QString path = loaded->path();
    OdEditorReactor* reactor = reactorOf(loaded->module());
    const std::size_t reactors = odedEditor()->reactorCount();
    recorder.clear();

    EXPECT_TRUE(loaded->unload());
    EXPECT_EQ(recorder.events().describe({"reactor-removed", "command-removed", "module-unloaded"},
                                         QStringLiteral("name")),
              QStringList({"reactor-removed", "command-removed:_Home", "command-removed:_Community",
                           "command-removed:_VIEWCAST", "reactor-removed", "module-unloaded"}));
    // No document was ever activated, so the crash-report reactor was still attached when the
    // module deleted it: the document manager forgot it.
    EXPECT_EQ(recorder.events().describe({"reactor-removed"}, QStringLiteral("cause")),
              QStringList({"reactor-removed", "reactor-removed:destroyed"}));

    EXPECT_FALSE(odedEditor()->hasReactor(reactor));
    EXPECT_EQ(odedEditor()->reactorCount(), reactors - 1);
    for (const char* name : {"Home", "_Home", "Community", "_Community", "VIEWCAST", "_VIEWCAST"})
        EXPECT_EQ(odedRegCmds()->lookupCmd(od(name)), nullptr) << name;
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(path)));

    // The module's memory and code are gone: a notification that still reached its reactor
    // would not come back.
    QWidget mainFrame;
    GetFxSystemServices()->MainFrameCreated(&mainFrame);
    GetFxSystemServices()->MainFrameDestroyed(&mainFrame);
    EXPECT_EQ(recorder.events().all().last().name, "mainframe-destroyed");
}
