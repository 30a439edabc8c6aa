// The module loaded, used and unloaded many times in one process, as a host that reloads its
// modules does: each unload must leave nothing behind that a later notification could reach.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QRegExp>

#include <gtest/gtest.h>

#include <CFxCommandContext.h>
#include <CFxHostServices.h>
#include <OdHostCommandStack.h>
#include <OdHostEditor.h>
#include <OdSharedLibrary.h>

TEST(ModuleSoak, AHundredLoadUseUnloadCyclesLeaveNothingBehind)
{
    IsolatedHome home;
    EventRecorder recorder;
    LoadedModule::useFolder();
    CFxHostDocumentManager* documents = GetFxHostServices()->GetDocumentManager();
    const int first = documents->OpenDocument(QStringLiteral("/drawings/first.dxf"))->GetIndex();
    int saved[4] = {};
    GetFxHostServices()->GetProductVersion(saved[0], saved[1], saved[2], saved[3]);
    const std::size_t reactors = odedHostEditor()->reactorCount();
    const std::size_t commands = odedHostRegCmds()->commands().size();

    for (int cycle = 0; cycle < 100; ++cycle) {
        // A new version at every start: the module compares it with the recorded one.
        GetFxHostServices()->SetProductVersion(2017, cycle % 2, 0, cycle);
        LoadedModule module;
        const QString path = module.path();
        if (cycle % 2 == 0) {
            documents->OpenDocument(QStringLiteral("/drawings/plan%1.dxf").arg(cycle));
            OdStaticRxObject<CFxCommandContext> context(QStringList{}, nullptr);
            ASSERT_TRUE(odedHostRegCmds()->executeCommand(OdString(L"Home"), &context));
        }
        if (cycle % 3 == 0)
            documents->ActivateDocument(first);
        ASSERT_TRUE(module.unload()) << "cycle " << cycle;
        ASSERT_FALSE(OdSharedLibrary::isLoaded(od(path))) << "cycle " << cycle;
        // Between the cycles nothing of the module may hear of the host's work, and Qt's
        // process-wide caches may hold nothing that lived in the module's library.
        documents->ActivateDocument(first);
        EXPECT_EQ(QString::fromLatin1("2017.1").split(QRegExp(QString::fromLatin1("\\."))).size(),
                  2);
        ASSERT_EQ(odedHostEditor()->reactorCount(), reactors);
        ASSERT_EQ(odedHostRegCmds()->commands().size(), commands);
    }
    EXPECT_EQ(recorder.events().count("module-unloaded"), 100);
    EXPECT_EQ(recorder.events().values("reactor-added", "kind").count("document-manager"), 100);
    EXPECT_EQ(recorder.events().values("reactor-removed", "kind").count("document-manager"), 100);
    // The first activation of each run checks once; the module reloaded is a new run.
    const QStringList calls = recorder.events().values("companion-call", "call");
    EXPECT_EQ(calls.count("reminderCheck") + calls.count("initialCheckOnInstall"), 67);
    documents->CloseAll();
    GetFxHostServices()->SetProductVersion(saved[0], saved[1], saved[2], saved[3]);
}
