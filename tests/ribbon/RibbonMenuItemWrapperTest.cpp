// The exported ribbon functions as a sibling calls them, on the host's default profile.
#include "MessageLog.h"
#include "RibbonHost.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <vector>

namespace {
const QString kDrawCompare = QStringLiteral("ID_DRAWCOMPARE_ITEM");
const QString kGCode = QStringLiteral("ID_GCODE_ITEM");
const QString kVaultline = QStringLiteral("ID_VAULTLINE_ITEM");

// The child records of a test: they live as long as it.
struct Children
{
    RibbonItem* add(RibbonItem& parent, const QString& id, const QString& type)
    {
        owned.push_back(std::make_unique<RibbonItem>(record(id, type)));
        parent.children.append(owned.back().get());
        return owned.back().get();
    }
    std::vector<std::unique_ptr<RibbonItem>> owned;
};
} // namespace

// Kept: docs/lifecycle.md, row "Position ignored".
TEST(RibbonLoading, PlacesTheOrderedButtonsAfterTheirNearestLoadedPredecessorOthersFirstAndEachOnce)
{
    RibbonHost host;
    RibbonItem drawCompare = record(kDrawCompare), vaultline = record(kVaultline),
               gcode = record(kGCode), other = record("ID_SIBLING_OTHER"),
               partKit = record("id_pk_partkit");
    host.load(&drawCompare, 3);
    host.load(&vaultline, 0);
    EXPECT_EQ(host.addInsButtons(), (QStringList{kDrawCompare, kVaultline}));
    host.load(&gcode, 99);
    EXPECT_EQ(host.addInsButtons(), (QStringList{kDrawCompare, kGCode, kVaultline}));
    host.load(&other, 2);
    host.load(&partKit, -7);
    const QStringList all{"ID_SIBLING_OTHER", kDrawCompare, kGCode, kVaultline, partKit.id};
    EXPECT_EQ(host.addInsButtons(), all)
        << "any other button goes first whatever its position; the order ignores letter case";

    RibbonItem again = record("id_gcode_item", "split");
    host.load(&gcode, 0);
    host.load(&again, 0);
    EXPECT_EQ(host.addInsButtons(), all) << "loading what the row holds changes nothing";
    EXPECT_EQ(host.addInsButton(kGCode)->GetKind(), CFxUIRibbonButton::kCommand);
}

TEST(RibbonLoading, MakesTheMissingTabPanelRowAndCommandAndUsesThoseThatExist)
{
    RibbonHost host;
    RibbonItem first = record("ID_SIBLING_A");
    first.tabText = QStringLiteral("Add-Ins tab");
    first.panelText = QStringLiteral("Add-Ins panel");
    first.smallIcon = QStringLiteral(":/sibling/a16.png");
    first.largeIcon = QStringLiteral(":/sibling/a32.png");
    RibbonItem line = record("id_line");
    line.tabId = QStringLiteral("id_ribbonaddinstab");
    host.load(&first, 0);
    host.load(&line, 0);

    const CFxUIRibbonTab* tab = exactly(host.mainGroup().GetRibbonTabs(), kAddInsTab);
    ASSERT_NE(tab, nullptr);
    EXPECT_EQ(tab->GetCaption().toQString(), "Add-Ins tab");
    EXPECT_TRUE(host.ui().FindWorkspace("Drafting and Annotation")->GetRibbonTabs().Contains(tab));
    ASSERT_EQ(tab->GetPanels().GetCount(), 1) << "found again in any letter case";
    EXPECT_EQ(tab->GetPanels().GetAt(0)->GetCaption().toQString(), "Add-Ins panel");
    EXPECT_EQ(host.addInsButtons(), (QStringList{"id_line", "ID_SIBLING_A"}));

    const CFxUICommand* command = host.ui().FindCommand("QUILLON", "ID_SIBLING_A");
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(host.addInsButton("ID_SIBLING_A")->GetCommand(), command);
    EXPECT_EQ(command->GetMacro().toQString(), "RUN_ID_SIBLING_A");
    EXPECT_EQ(command->GetActionId().toQString(), "ID_RUN_ID_SIBLING_A");
    EXPECT_EQ(command->GetDescription().toQString(), "Runs ID_SIBLING_A");
    EXPECT_EQ(command->GetSmallIcon().toQString(), ":/sibling/a16.png");
    EXPECT_EQ(command->GetLargeIcon().toQString(), ":/sibling/a32.png");
    EXPECT_EQ(host.addInsButton("id_line")->GetCommand()->GetMacro().toQString(), "^C^C_LINE")
        << "the host's own LINE command, found in any letter case and left as it is";
}

TEST(RibbonLoading, BuildsSplitButtonsDepthFirstAndNoButtonForASeparatorOrAnUnknownType)
{
    RibbonHost host;
    Children children;
    RibbonItem separator = record("ID_SIBLING_SEPARATOR", "separator");
    children.add(separator, "ID_SIBLING_UNDER_SEPARATOR", "command");
    RibbonItem capitalised = record("ID_SIBLING_CAPITAL", "Command");
    RibbonItem vaultline = record(kVaultline, "split");
    children.add(vaultline, "ID_VL_CHECKIN", "command");
    children.add(*children.add(vaultline, "ID_VL_SEPARATOR", "separator"), "ID_VL_DROPPED",
                 "command");
    children.add(*children.add(vaultline, "ID_VL_MORE", "split"), "ID_VL_HISTORY", "command");
    children.add(*children.add(vaultline, "ID_VL_UNKNOWN", "menu"), "ID_VL_BELOW_UNKNOWN",
                 "command");
    const int commands = host.mainGroup().GetCommands().GetCount();
    for (RibbonItem* item : {&separator, &capitalised, &vaultline})
        host.load(item, 0);

    EXPECT_EQ(host.addInsButtons(), QStringList{kVaultline}) << "types match case-sensitively";
    EXPECT_EQ(
        ids(host.mainGroup().GetCommands()).mid(commands),
        (QStringList{"ID_SIBLING_SEPARATOR", "ID_SIBLING_UNDER_SEPARATOR", "ID_SIBLING_CAPITAL",
                     kVaultline, "ID_VL_CHECKIN", "ID_VL_SEPARATOR", "ID_VL_DROPPED", "ID_VL_MORE",
                     "ID_VL_HISTORY", "ID_VL_UNKNOWN", "ID_VL_BELOW_UNKNOWN"}))
        << "every record has its command, made before what it holds";
    const CFxUIRibbonButton* split = host.addInsButton(kVaultline);
    EXPECT_EQ(split->GetKind(), CFxUIRibbonButton::kSplit);
    EXPECT_EQ(ids(split->GetSubButtons()), (QStringList{"ID_VL_CHECKIN", "", "ID_VL_MORE"}));
    const CFxUIList<CFxUIRibbonButton>& entries = split->GetSubButtons();
    EXPECT_EQ(entries.GetAt(0)->GetCommand(), host.ui().FindCommand("QUILLON", "ID_VL_CHECKIN"));
    EXPECT_EQ(entries.GetAt(1)->GetKind(), CFxUIRibbonButton::kSeparator);
    EXPECT_EQ(entries.GetAt(1)->GetSubButtons().GetCount(), 0) << "a separator drops what it holds";
    EXPECT_EQ(ids(entries.GetAt(2)->GetSubButtons()), QStringList{"ID_VL_HISTORY"});
}

TEST(RibbonLoading, WalksRecordsNestedThousandsDeepAndSkipsCyclesAndNullChildren)
{
    constexpr int depth = 5000;
    RibbonHost host;
    Children children;
    RibbonItem top = record("ID_SIBLING_DEEP", "split");
    RibbonItem* level = &top;
    for (int i = 0; i < depth; ++i)
        level = children.add(*level, QStringLiteral("ID_DEEP_%1").arg(i), "split");
    level->children << &top << nullptr;
    const int commands = host.mainGroup().GetCommands().GetCount();
    host.load(&top, 0);

    const CFxUIRibbonButton* button = host.addInsButton(top.id);
    ASSERT_NE(button, nullptr);
    int found = 0;
    for (; button->GetSubButtons().GetCount() == 1; ++found)
        button = button->GetSubButtons().GetAt(0);
    EXPECT_EQ(found, depth);
    EXPECT_EQ(host.mainGroup().GetCommands().GetCount(), commands + depth + 1);
}

// A sibling's records often hold its own constant texts, which go with its library when it is
// unloaded: the module keeps none of them, also where folding the letter case leaves a text as
// it is. The identifier here lies in a page that is taken away after the call, as an unloaded
// library's texts are; loading it again from a text of the test's own then reads only what the
// module copied.
TEST(RibbonLoading, KeepsNoTextOfASiblingOnceTheCallReturns)
{
    RibbonHost host;
    const QString id = QStringLiteral("id_sibling_lower_case");
    const long pageSize = ::sysconf(_SC_PAGESIZE);
    void* page =
        ::mmap(nullptr, pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(page, MAP_FAILED);
    std::copy(id.constBegin(), id.constEnd(), static_cast<QChar*>(page));
    {
        RibbonItem item = record(id);
        item.id = QString::fromRawData(static_cast<const QChar*>(page), id.size());
        host.load(&item, 0);
        host.unload(item.id);
    }
    ASSERT_EQ(::munmap(page, pageSize), 0);

    RibbonItem again = record(id);
    host.load(&again, 0);
    EXPECT_EQ(host.addInsButtons(), QStringList{id});
}

// Kept: docs/lifecycle.md, row "Siblings' buttons".
TEST(RibbonUnloading, RemovesButtonAndCommandThenPrunesThePanelAndTheTabOnce)
{
    RibbonHost host;
    RibbonItem gcode = record(kGCode), vaultline = record(kVaultline);
    host.load(&gcode, 0);
    host.load(&vaultline, 0);
    const CFxUIRibbonTab* tab = exactly(host.mainGroup().GetRibbonTabs(), kAddInsTab);
    const CFxUIRibbonPanel* panel = tab->GetPanels().GetAt(0);
    const auto updates = [&host] { return host.events().count("ui-updated"); };

    host.unload("id_gcode_item");
    EXPECT_EQ(host.addInsButtons(), QStringList{kVaultline});
    EXPECT_EQ(host.ui().FindCommand("QUILLON", kGCode), nullptr);
    EXPECT_EQ(updates(), 1);

    host.unload(kVaultline);
    EXPECT_FALSE(tab->GetPanels().Contains(panel)) << "the emptied panel leaves its tab";
    EXPECT_TRUE(host.mainGroup().GetRibbonPanels().Contains(panel)) << "but not the main group";
    EXPECT_FALSE(host.mainGroup().GetRibbonTabs().Contains(tab)) << "and the tab the ribbon";
    EXPECT_TRUE(host.ui().FindWorkspace("Drafting and Annotation")->GetRibbonTabs().Contains(tab));
    EXPECT_EQ(updates(), 2);
    host.unload(kVaultline);
    EXPECT_EQ(updates(), 2) << "nothing is there to unload any more";

    host.load(&vaultline, 0);
    EXPECT_EQ(host.addInsButtons(), QStringList{kVaultline}) << "in a new tab, panel and row";
}

TEST(RibbonVisibility, MarksHiddenEntriesOnceAndShowingRestoresTheText)
{
    RibbonHost host;
    Children children;
    RibbonItem before = record(kDrawCompare);
    RibbonItem vaultline = record(kVaultline, "split");
    children.add(vaultline, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    children.add(vaultline, "ID_VL_SAVE", "command")->text = QStringLiteral("~Save");
    children.add(vaultline, "id_vl_open", "command")->text = QStringLiteral("Open too");
    host.load(&before, 0);
    host.load(&vaultline, 0);
    const CFxUIRibbonButton* split = host.addInsButton(kVaultline);
    const auto entries = [split] { return texts(split->GetSubButtons()); };

    host.setVisibility("Id_Vl_Open", false);
    EXPECT_EQ(entries(), (QStringList{"~Open", "~Save", "~Open too"}));
    host.setVisibility("ID_VL_OPEN", false);
    EXPECT_EQ(entries(), (QStringList{"~Open", "~Save", "~Open too"})) << "never two marks";
    host.setVisibility("ID_VL_OPEN", true);
    host.setVisibility("ID_VL_SAVE", true);
    EXPECT_EQ(entries(), (QStringList{"Open", "Save", "Open too"}));
    host.setVisibility("ID_VL_OPEN", true);
    EXPECT_EQ(entries(), (QStringList{"Open", "Save", "Open too"}));
}

// Kept: docs/lifecycle.md, row "Look-up rules".
TEST(RibbonVisibility, SwitchesOnlyTheSplitButtonOfExactlyThatIdentifierInTheAddInsRow)
{
    RibbonHost host;
    Children children;
    RibbonItem lookalike = record("ID_VaultLine_Item", "split");
    children.add(lookalike, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    RibbonItem elsewhere = record(kVaultline, "split");
    elsewhere.tabId = QStringLiteral("ID_RibbonHomeTab");
    elsewhere.panelId = QStringLiteral("ID_RibbonDrawPanel");
    children.add(elsewhere, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    host.load(&lookalike, 0);
    host.load(&elsewhere, 0);

    host.setVisibility("ID_VL_OPEN", false);
    EXPECT_EQ(texts(host.addInsButton(lookalike.id)->GetSubButtons()), QStringList{"Open"});
    const CFxUIRibbonRow* other =
        row(host.mainGroup(), "ID_RibbonHomeTab", "ID_RibbonDrawPanel", elsewhere.rowId);
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(texts(exactly(other->GetButtons(), kVaultline)->GetSubButtons()),
              QStringList{"Open"});
}

// Each button looked at on the way to the data-management split button is written to the debug
// log, as its text, under a source, line and function that never change, so that whoever reads
// the log finds the lines by those three.
// Kept: docs/lifecycle.md, row "Debug log source".
TEST(RibbonVisibility, WritesEachButtonLookedAtToTheDebugLogUnderAFixedSourceLineAndFunction)
{
    RibbonHost host;
    Children children;
    RibbonItem drawCompare = record(kDrawCompare), gcode = record(kGCode),
               vaultline = record(kVaultline, "split"), partKit = record("ID_PK_PARTKIT");
    drawCompare.text = QStringLiteral("Draw \"compare\"");
    children.add(vaultline, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    for (RibbonItem* item : {&drawCompare, &gcode, &vaultline, &partKit})
        host.load(item, 0);
    const QString line =
        QStringLiteral("debug RibbonMenuItemWrapper:21 "
                       "[void __cdecl SetRibbonItemVisibility(const class QString &,bool)] ");

    {
        const MessageLog log;
        host.setVisibility("ID_VL_OPEN", false);
        EXPECT_EQ(log.lines(), QStringList({line + "Draw \"compare\"", line + "id_gcode_item",
                                            line + "id_vaultline_item"}))
            << "up to the split button, and none after it";
    }

    host.unload(kVaultline);
    const MessageLog log;
    host.setVisibility("ID_VL_OPEN", true);
    EXPECT_EQ(log.lines(), QStringList({line + "Draw \"compare\"", line + "id_gcode_item",
                                        line + "id_pk_partkit"}))
        << "without the split button, every button of the row";
}
