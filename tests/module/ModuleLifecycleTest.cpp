// The real module loaded through the platform's dynamic linker: what its start lends to the
// host, that its stop takes all of it back, and what its commands answer.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <CFxCommand.h>
#include <CFxCommandContext.h>
#include <CFxHostServices.h>
#include <OdHostCommandStack.h>
#include <OdHostEditor.h>
#include <OdSharedLibrary.h>

#include <optional>

class ModuleLifecycle : public ::testing::Test
{
protected:
    void SetUp() override { LoadedModule::useFolder(); }

    IsolatedHome home;
    EventRecorder recorder;
    std::optional<LoadedModule> loaded;
};

// Kept: docs/lifecycle.md, row "Unregistered commands".
TEST_F(ModuleLifecycle, StartAttachesTheEditorReactorAndRegistersThreeCommandsInOrder)
{
    loaded.emplace();
    EXPECT_EQ(
        recorder.events().timeline({"module-loaded", "reactor-added kind", "command-added name"}),
        QStringList({"module-loaded", "reactor-added editor", "command-added _Home",
                     "command-added _Community", "command-added _VIEWCAST",
                     "reactor-added document-manager"}));

    for (const char* hidden : {"TUTORIAL", "_TUTORIAL", "PLOT_PRONTO", "_PLOT_PRONTO"})
        EXPECT_EQ(odedHostRegCmds()->lookupCmd(od(hidden)), nullptr) << hidden;
}

TEST_F(ModuleLifecycle, CommandsRunByLocalOrGlobalNameAndCompleteNormally)
{
    loaded.emplace();
    for (const char* name :
         {"Home", "_Home", "HOME", "Community", "_community", "VIEWCAST", "_VIEWCAST"}) {
        OdStaticRxObject<CFxCommandContext> context(QStringList{}, nullptr);
        EXPECT_TRUE(odedHostRegCmds()->executeCommand(od(name), &context)) << name;
        EXPECT_EQ(context.result(), RTNORM) << name;
    }
}

// Kept: docs/lifecycle.md, rows "Start-up commands" and "Crash-report reactor".
TEST_F(ModuleLifecycle, StopTakesBackEverythingTheStartLent)
{
    loaded.emplace();
    const QString path = loaded->path();
    recorder.clear();

    EXPECT_TRUE(loaded->unload());
    // No document was ever activated, so the crash-report reactor was still attached when the
    // module deleted it: the document manager forgot it.
    EXPECT_EQ(
        recorder.events().timeline(
            {"reactor-removed cause", "command-removed name", "module-unloaded"}),
        QStringList({"reactor-removed null", "command-removed _Home", "command-removed _Community",
                     "command-removed _VIEWCAST", "reactor-removed destroyed", "module-unloaded"}));
    for (const char* name : {"Home", "_Home", "Community", "_Community", "VIEWCAST", "_VIEWCAST"})
        EXPECT_EQ(odedHostRegCmds()->lookupCmd(od(name)), nullptr) << name;
    EXPECT_FALSE(OdSharedLibrary::isLoaded(od(path)));

    // The module's memory and code are gone: a notification that still reached its reactor
    // would not come back.
    QWidget mainFrame;
    GetFxHostServices()->MainFrameCreated(&mainFrame);
    GetFxHostServices()->MainFrameDestroyed(&mainFrame);
    EXPECT_EQ(recorder.events().all().last().name, "mainframe-destroyed");
}
