// The sample sibling, built against the package installed in a prefix of its own, links
// ExtCommands.tx from that prefix; the host loads ExtCommands from its own folder. Whichever of
// the two modules comes first, the process holds one copy of ExtCommands: one module object and
// one set of ribbon tables, shared by the sibling's calls and the module's own.
//
// The program plays the host, without its folder on the library search path (as a host whose
// companion folder holds only companions): the sibling's dependency is found through the
// sibling's own search path, in its prefix.
#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "MappedLibraries.h"
#include "RibbonEntryPoints.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxCommandContext.h>
#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <CFxUIJsonReader.h>
#include <OdHostCommandStack.h>
#include <OdHostDynamicLinker.h>
#include <OdStaticRxObject.h>

#include <memory>

namespace {
const QString kModuleFile = QStringLiteral("ExtCommands.tx");

QString canonical(const QString& path)
{
    return QFileInfo(path).canonicalFilePath();
}

QStringList mappedModules()
{
    QStringList files;
    for (const QString& path : MappedLibraries::named(kModuleFile))
        files << canonical(path);
    return files;
}

RibbonItem addInsRecord(const QString& id)
{
    RibbonItem item;
    item.id = id;
    item.text = id.toLower();
    item.type = QStringLiteral("command");
    item.commandName = QStringLiteral("RUN_") + id;
    item.tabId = QStringLiteral("ID_RibbonAddInsTab");
    item.panelId = QStringLiteral("ID_RibbonAddInsPanel");
    item.rowId = QStringLiteral("ID_RibbonAddInsRow");
    return item;
}
} // namespace

class OneModulePerProcess : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto ui = std::make_unique<CFxHostUI>();
        CFxUIJsonReader::readFile(QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json"), *ui);
        GetFxHostServices()->SetUI(std::move(ui));
        odrxHostDynamicLinker()->setSearchPath(
            {od(QStringLiteral(EC_SAMPLE_BUILD)), od(QStringLiteral(EC_STAGE_DIR))});
        ASSERT_TRUE(mappedModules().isEmpty());
    }

    void TearDown() override
    {
        if (m_mainFrame)
            GetFxHostServices()->MainFrameDestroyed(nullptr);
        odrxHostDynamicLinker()->unloadAll();
        EXPECT_TRUE(odrxHostDynamicLinker()->loadedModules().empty());
        EXPECT_TRUE(mappedModules().isEmpty()) << "the one copy goes with the last module";
        GetFxHostServices()->SetUI(nullptr);
    }

    static void load(const wchar_t* module)
    {
        ASSERT_FALSE(odrxHostDynamicLinker()->loadModule(OdString(module), false).isNull());
    }

    // The module mapped once, from `file`, and the linker's module object from it; then, with
    // a main window, one set of ribbon tables: "ID_GCODE_ITEM", loaded by the sibling, stands
    // after "ID_DRAWCOMPARE_ITEM", loaded through the module's own exports, only when both
    // calls reach the same table of loaded buttons.
    void expectOneModuleFrom(const QString& file)
    {
        EXPECT_EQ(mappedModules(), QStringList{canonical(file)});
        const OdRxModulePtr module = odrxHostDynamicLinker()->getModule(OdString(L"ExtCommands"));
        ASSERT_FALSE(module.isNull());
        EXPECT_EQ(canonical(qt(module->moduleName())), canonical(file));

        m_mainFrame = true;
        GetFxHostServices()->MainFrameCreated(nullptr);
        RibbonItem drawCompare = addInsRecord(QStringLiteral("ID_DRAWCOMPARE_ITEM"));
        RibbonEntryPoints::find(module->moduleName()).load(&drawCompare, 0);
        QFile records(m_folder.filePath(QStringLiteral("gcode.json")));
        ASSERT_TRUE(records.open(QIODevice::WriteOnly));
        records.write(R"([{"id": "ID_GCODE_ITEM", "type": "command", "commandName": "GCODE",
            "tabId": "ID_RibbonAddInsTab", "panelId": "ID_RibbonAddInsPanel",
            "rowId": "ID_RibbonAddInsRow"}])");
        records.close();
        OdStaticRxObject<CFxCommandContext> context(QStringList{records.fileName()}, nullptr);
        ASSERT_TRUE(odedHostRegCmds()->executeCommand(OdString(L"SAMPLELOAD"), &context));

        EXPECT_EQ(addInsRow(),
                  QStringList({"ID_DRAWCOMPARE_ITEM", "ID_GCODE_ITEM", "ID_SAMPLE_ITEM"}));
        EXPECT_EQ(m_events.events().count(QStringLiteral("module-loaded")), 3)
            << "the sibling, the module and its online connector, each once";
    }

private:
    // The identifiers of the buttons of the Add-Ins row of the one tab the main group holds.
    static QStringList addInsRow()
    {
        QStringList ids;
        int tabs = 0;
        for (const CFxUIGroup* group : GetFxHostServices()->GetUI()->GetMenuGroups()) {
            if (!group->IsMainGroup())
                continue;
            for (const CFxUIRibbonTab* tab : group->GetRibbonTabs()) {
                if (tab->GetIdentifier().toQString() != QLatin1String("ID_RibbonAddInsTab"))
                    continue;
                ++tabs;
                for (const CFxUIRibbonPanel* panel : tab->GetPanels())
                    for (const CFxUIRibbonRow* row : panel->GetRows())
                        for (const CFxUIRibbonButton* button : row->GetButtons())
                            ids << button->GetIdentifier().toQString();
            }
        }
        EXPECT_EQ(tabs, 1);
        return ids;
    }

    IsolatedHome m_home;
    EventRecorder m_events;
    QTemporaryDir m_folder;
    bool m_mainFrame = false;
};

TEST_F(OneModulePerProcess, ASiblingLoadedBeforeTheModuleBringsTheCopyThatBothUse)
{
    load(L"SampleSibling");
    load(L"ExtCommands");
    expectOneModuleFrom(QStringLiteral(EC_SAMPLE_PREFIX "/bin/ExtCommands.tx"));
}

TEST_F(OneModulePerProcess, ASiblingLoadedAfterTheModuleUsesTheCopyTheHostLoaded)
{
    load(L"ExtCommands");
    load(L"SampleSibling");
    expectOneModuleFrom(QStringLiteral(EC_STAGE_DIR "/ExtCommands.tx"));
}
