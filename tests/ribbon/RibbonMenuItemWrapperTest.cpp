// The exported ribbon functions as a sibling calls them, with the module loaded through the
// platform's dynamic linker and the host's UI model built from its default profile.
#include "RibbonHost.h"
#include "RibbonModel.h"

#include <QJsonArray>
#include <QMessageLogContext>

#include <gtest/gtest.h>

#include <CFxUI.h>
#include <CFxUIJsonWriter.h>

#include <memory>
#include <vector>

namespace {
using Records = std::vector<std::unique_ptr<RibbonItem>>;

const QString kDrawCompare = QStringLiteral("ID_DRAWCOMPARE_ITEM");
const QString kGCode = QStringLiteral("ID_GCODE_ITEM");
const QString kVaultline = QStringLiteral("ID_VAULTLINE_ITEM");
const QString kPartKit = QStringLiteral("ID_PK_PARTKIT");

RibbonItem* child(RibbonItem& parent, Records& owner, const QString& id, const QString& type)
{
    owner.push_back(std::make_unique<RibbonItem>(RibbonModel::addInsRecord(id, type)));
    parent.children.append(owner.back().get());
    return owner.back().get();
}

int countUpdates(const RibbonHost& host)
{
    return host.events().count(QStringLiteral("ui-updated"));
}

// The debug messages written while it exists, with where they say they come from.
class DebugLog
{
public:
    DebugLog() : m_previous(qInstallMessageHandler(&DebugLog::record)) { s_messages.clear(); }
    ~DebugLog() { qInstallMessageHandler(m_previous); }

    static QStringList messages() { return s_messages; }
    static QStringList origins() { return s_origins; }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (type != QtDebugMsg)
            return;
        s_messages << text;
        s_origins << QStringLiteral("%1:%2 %3")
                         .arg(QLatin1String(context.file))
                         .arg(context.line)
                         .arg(QLatin1String(context.function));
    }

    static inline QStringList s_messages;
    static inline QStringList s_origins;
    QtMessageHandler m_previous;
};
} // namespace

TEST(RibbonLoading, PlacesTheDataManagementFamilyInItsOrderAndAnyOtherButtonFirst)
{
    RibbonHost host;
    RibbonItem vaultline = RibbonModel::addInsRecord(kVaultline);
    RibbonItem drawCompare = RibbonModel::addInsRecord(kDrawCompare);
    RibbonItem gcode = RibbonModel::addInsRecord(kGCode);
    RibbonItem partKit = RibbonModel::addInsRecord(kPartKit);
    RibbonItem other = RibbonModel::addInsRecord("ID_SIBLING_OTHER");

    host.load(drawCompare, 3);
    host.load(vaultline, 0);
    EXPECT_EQ(RibbonModel::addInsButtons(host.mainGroup()),
              (QStringList{kDrawCompare, kVaultline}));
    host.load(gcode, 99);
    EXPECT_EQ(RibbonModel::addInsButtons(host.mainGroup()),
              (QStringList{kDrawCompare, kGCode, kVaultline}))
        << "after its nearest loaded predecessor";
    host.load(other, 2);
    host.load(partKit, -7);
    EXPECT_EQ(RibbonModel::addInsButtons(host.mainGroup()),
              (QStringList{"ID_SIBLING_OTHER", kDrawCompare, kGCode, kVaultline, kPartKit}))
        << "a button outside the order goes first, whatever its position";
}

TEST(RibbonLoading, MakesTheContainersAndTheCommandThatAreMissingAndUsesThoseThatExist)
{
    RibbonHost host;
    RibbonItem first = RibbonModel::addInsRecord("ID_SIBLING_A");
    first.tabText = QStringLiteral("Add-Ins tab");
    first.panelText = QStringLiteral("Add-Ins panel");
    first.smallIcon = QStringLiteral(":/sibling/a16.png");
    first.largeIcon = QStringLiteral(":/sibling/a32.png");
    RibbonItem second = RibbonModel::addInsRecord("id_line");
    second.tabId = QStringLiteral("id_ribbonaddinstab");
    second.tabText = QStringLiteral("ignored");
    host.load(first);
    host.load(second);

    CFxUIGroup& group = host.mainGroup();
    const CFxUIRibbonTab* tab = group.GetRibbonTabs().GetAt(group.GetRibbonTabs().GetCount() - 1);
    EXPECT_EQ(tab->GetCaption().toQString(), "Add-Ins tab");
    EXPECT_EQ(tab->GetListCaption().toQString(), "Add-Ins tab");
    EXPECT_TRUE(host.ui().FindWorkspace("Drafting and Annotation")->GetRibbonTabs().Contains(tab));
    EXPECT_FALSE(host.ui().FindWorkspace("3D Basics")->GetRibbonTabs().Contains(tab));
    ASSERT_EQ(tab->GetPanels().GetCount(), 1) << "found again in any letter case";
    const CFxUIRibbonPanel* panel = tab->GetPanels().GetAt(0);
    EXPECT_EQ(panel->GetCaption().toQString(), "Add-Ins panel");
    EXPECT_EQ(panel->GetCollapsedCaption().toQString(), "Add-Ins panel");
    EXPECT_TRUE(group.GetRibbonPanels().Contains(panel));
    EXPECT_EQ(RibbonModel::addInsButtons(group), (QStringList{"id_line", "ID_SIBLING_A"}));

    const CFxUICommand* command = host.ui().FindCommand("QUILLON", "ID_SIBLING_A");
    ASSERT_NE(command, nullptr) << "in the main group's commands";
    EXPECT_EQ(command->GetMacro().toQString(), "RUN_ID_SIBLING_A");
    EXPECT_EQ(command->GetActionId().toQString(), "ID_RUN_ID_SIBLING_A");
    EXPECT_EQ(command->GetName().toQString(), "RUN_ID_SIBLING_A");
    EXPECT_EQ(command->GetDescription().toQString(), "Runs ID_SIBLING_A");
    EXPECT_EQ(command->GetSmallIcon(0).toQString() + command->GetSmallIcon(1).toQString(),
              ":/sibling/a16.png");
    EXPECT_EQ(command->GetLargeIcon(0).toQString() + command->GetLargeIcon(1).toQString(),
              ":/sibling/a32.png");
    const CFxUIRibbonButton* button = RibbonModel::addInsButton(group, "ID_SIBLING_A");
    EXPECT_EQ(button->GetKind(), CFxUIRibbonButton::kCommand);
    EXPECT_EQ(button->GetText().toQString(), "id_sibling_a");
    EXPECT_EQ(button->GetCommand(), command);
    EXPECT_EQ(button->GetDisplayStyle(), 1);
    EXPECT_EQ(RibbonModel::addInsButton(group, "id_line")->GetCommand()->GetMacro().toQString(),
              "^C^C_LINE")
        << "the host's own LINE command, found in any letter case and left as it is";
}

TEST(RibbonLoading, LoadingAnIdentifierTheRowHoldsChangesNothing)
{
    RibbonHost host;
    RibbonItem first = RibbonModel::addInsRecord(kGCode);
    first.text = QStringLiteral("first");
    RibbonItem again = RibbonModel::addInsRecord("id_gcode_item", "split");
    again.text = QStringLiteral("second");
    RibbonItem accented = RibbonModel::addInsRecord(QStringLiteral("ID_\u00c9TIQUETTE_\U00010400"));
    RibbonItem accentedLower =
        RibbonModel::addInsRecord(QStringLiteral("id_\u00e9tiquette_\U00010428"));
    host.load(first);
    host.load(accented);
    const int commands = host.mainGroup().GetCommands().GetCount();
    host.load(first);
    host.load(again);
    host.load(accentedLower);

    EXPECT_EQ(RibbonModel::addInsButtons(host.mainGroup()), (QStringList{accented.id, kGCode}))
        << "letter case is ignored beyond ASCII as well";
    EXPECT_EQ(RibbonModel::addInsButton(host.mainGroup(), kGCode)->GetText().toQString(), "first");
    EXPECT_EQ(host.mainGroup().GetCommands().GetCount(), commands);
}

TEST(RibbonLoading, ASeparatorOrUnknownTypeMakesTheCommandButNoButton)
{
    RibbonHost host;
    Records owner;
    RibbonItem separator = RibbonModel::addInsRecord("ID_SIBLING_SEPARATOR", "separator");
    child(separator, owner, "ID_SIBLING_UNDER_SEPARATOR", "command");
    RibbonItem capitalised = RibbonModel::addInsRecord("ID_SIBLING_CAPITAL", "Command");
    RibbonItem untyped = RibbonModel::addInsRecord("ID_SIBLING_UNTYPED", QString());
    host.load(separator);
    host.load(capitalised);
    host.load(untyped);

    EXPECT_TRUE(RibbonModel::addInsButtons(host.mainGroup()).isEmpty())
        << "the row is made, but no button goes into it (types match case-sensitively)";
    ASSERT_NE(RibbonModel::addInsRow(host.mainGroup()), nullptr);
    for (const char* id : {"ID_SIBLING_SEPARATOR", "ID_SIBLING_UNDER_SEPARATOR",
                           "ID_SIBLING_CAPITAL", "ID_SIBLING_UNTYPED"})
        EXPECT_NE(host.ui().FindCommand("QUILLON", id), nullptr) << id;
}

TEST(RibbonLoading, BuildsSplitButtonsWithTheirEntriesToAnyDepth)
{
    RibbonHost host;
    Records owner;
    RibbonItem vaultline = RibbonModel::addInsRecord(kVaultline, "split");
    child(vaultline, owner, "ID_VL_CHECKIN", "command");
    RibbonItem* separator = child(vaultline, owner, "ID_VL_SEPARATOR", "separator");
    child(*separator, owner, "ID_VL_DROPPED", "command");
    RibbonItem* nested = child(vaultline, owner, "ID_VL_MORE", "split");
    child(*nested, owner, "ID_VL_HISTORY", "command");
    RibbonItem* unknown = child(vaultline, owner, "ID_VL_UNKNOWN", "menu");
    child(*unknown, owner, "ID_VL_BELOW_UNKNOWN", "command");
    const int commands = host.mainGroup().GetCommands().GetCount();
    host.load(vaultline);

    const CFxUIRibbonButton* split = RibbonModel::addInsButton(host.mainGroup(), kVaultline);
    ASSERT_NE(split, nullptr);
    EXPECT_EQ(split->GetKind(), CFxUIRibbonButton::kSplit);
    EXPECT_EQ(split->GetSplitStyle(), 3);
    EXPECT_EQ(split->GetSplitBehavior(), 1);
    EXPECT_EQ(split->GetCommand(), nullptr);
    EXPECT_EQ(RibbonModel::ids(split->GetSubButtons()),
              (QStringList{"ID_VL_CHECKIN", "", "ID_VL_MORE"}));
    const CFxUIRibbonButton* checkIn = split->GetSubButtons().GetAt(0);
    EXPECT_EQ(checkIn->GetDisplayStyle(), 3) << "entries are small buttons";
    EXPECT_EQ(checkIn->GetCommand(), host.ui().FindCommand("QUILLON", "ID_VL_CHECKIN"));
    EXPECT_EQ(split->GetSubButtons().GetAt(1)->GetKind(), CFxUIRibbonButton::kSeparator);
    EXPECT_EQ(split->GetSubButtons().GetAt(1)->GetSubButtons().GetCount(), 0);
    const CFxUIRibbonButton* more = split->GetSubButtons().GetAt(2);
    EXPECT_EQ(more->GetKind(), CFxUIRibbonButton::kSplit);
    EXPECT_EQ(RibbonModel::ids(more->GetSubButtons()), (QStringList{"ID_VL_HISTORY"}));

    EXPECT_EQ(host.mainGroup().GetCommands().GetCount(), commands + 8)
        << "every record has its command, those that got no button too";
    EXPECT_EQ(RibbonModel::ids(host.mainGroup().GetCommands()).mid(commands),
              (QStringList{kVaultline, "ID_VL_CHECKIN", "ID_VL_SEPARATOR", "ID_VL_DROPPED",
                           "ID_VL_MORE", "ID_VL_HISTORY", "ID_VL_UNKNOWN", "ID_VL_BELOW_UNKNOWN"}))
        << "made depth first, each before what it holds";
}

TEST(RibbonLoading, WalksRecordsNestedThousandsDeepAndStopsAtOneThatHoldsItself)
{
    constexpr int depth = 5000;
    RibbonHost host;
    Records owner;
    RibbonItem top = RibbonModel::addInsRecord("ID_SIBLING_DEEP", "split");
    RibbonItem* level = &top;
    for (int i = 0; i < depth; ++i)
        level = child(*level, owner, QStringLiteral("ID_DEEP_%1").arg(i), "split");
    level->children.append(&top);
    level->children.append(nullptr);
    const int commands = host.mainGroup().GetCommands().GetCount();
    host.load(top);

    int found = 0;
    const CFxUIRibbonButton* button = RibbonModel::addInsButton(host.mainGroup(), top.id);
    while (button && button->GetSubButtons().GetCount() == 1) {
        button = button->GetSubButtons().GetAt(0);
        ++found;
    }
    EXPECT_EQ(found, depth);
    EXPECT_EQ(button->GetIdentifier().toQString(), QStringLiteral("ID_DEEP_%1").arg(depth - 1));
    EXPECT_EQ(button->GetSubButtons().GetCount(), 0);
    EXPECT_EQ(host.mainGroup().GetCommands().GetCount(), commands + depth + 1);

    // The host writes such a model out as well (its "ui" statement).
    const QJsonObject model = CFxUIJsonWriter::write(host.ui());
    QJsonArray buttons = model["groups"][1]["tabs"][3]["panels"][0]["rows"][0]["buttons"].toArray();
    int written = -1;
    for (; !buttons.isEmpty(); ++written)
        buttons = buttons.at(0)["buttons"].toArray();
    EXPECT_EQ(written, depth);
}

TEST(RibbonUnloading, RemovesTheButtonAndCommandThenPrunesThePanelAndTheTab)
{
    RibbonHost host;
    RibbonItem gcode = RibbonModel::addInsRecord(kGCode);
    RibbonItem vaultline = RibbonModel::addInsRecord(kVaultline);
    host.load(gcode);
    host.load(vaultline);
    CFxUIGroup& group = host.mainGroup();
    const CFxUIRibbonTab* tab = group.GetRibbonTabs().GetAt(group.GetRibbonTabs().GetCount() - 1);
    const CFxUIRibbonPanel* panel = tab->GetPanels().GetAt(0);

    host.unload("id_gcode_item");
    EXPECT_EQ(RibbonModel::addInsButtons(group), (QStringList{kVaultline}));
    EXPECT_EQ(host.ui().FindCommand("QUILLON", kGCode), nullptr);
    EXPECT_EQ(countUpdates(host), 1);

    host.unload(kVaultline);
    EXPECT_FALSE(tab->GetPanels().Contains(panel)) << "the emptied panel leaves its tab";
    EXPECT_TRUE(group.GetRibbonPanels().Contains(panel)) << "but stays among the group's";
    EXPECT_FALSE(group.GetRibbonTabs().Contains(tab)) << "the emptied tab leaves the ribbon";
    EXPECT_TRUE(host.ui().FindWorkspace("Drafting and Annotation")->GetRibbonTabs().Contains(tab));
    EXPECT_EQ(countUpdates(host), 2);

    host.unload(kVaultline);
    EXPECT_EQ(countUpdates(host), 2) << "nothing is there to unload any more";

    host.load(vaultline);
    EXPECT_EQ(RibbonModel::addInsButtons(group), (QStringList{kVaultline}))
        << "loading again makes a new tab, panel and row";
}

TEST(RibbonUnloading, LeavesNoRemovedButtonBehindAsAnAnchor)
{
    RibbonHost host;
    RibbonItem other = RibbonModel::addInsRecord("ID_SIBLING_OTHER");
    RibbonItem gcode = RibbonModel::addInsRecord(kGCode);
    RibbonItem vaultline = RibbonModel::addInsRecord(kVaultline);
    host.load(other);
    host.load(gcode);
    ASSERT_EQ(RibbonModel::addInsButtons(host.mainGroup()),
              (QStringList{kGCode, "ID_SIBLING_OTHER"}));

    host.unload("id_gcode_item");
    host.load(vaultline);
    EXPECT_EQ(RibbonModel::addInsButtons(host.mainGroup()),
              (QStringList{kVaultline, "ID_SIBLING_OTHER"}))
        << "unloaded in another letter case, the button is forgotten as well";

    RibbonItem lowerCase = RibbonModel::addInsRecord("id_drawcompare_item");
    RibbonItem partKit = RibbonModel::addInsRecord(kPartKit);
    host.unload(kVaultline);
    host.load(lowerCase);
    host.load(partKit);
    EXPECT_EQ(RibbonModel::addInsButtons(host.mainGroup()),
              (QStringList{"id_drawcompare_item", kPartKit, "ID_SIBLING_OTHER"}))
        << "identifiers of the order match in any letter case";
}

TEST(RibbonVisibility, MarksHiddenEntriesOnceAndShowingRestoresTheText)
{
    RibbonHost host;
    Records owner;
    RibbonItem before = RibbonModel::addInsRecord(kDrawCompare);
    before.text = QStringLiteral("Compare");
    RibbonItem vaultline = RibbonModel::addInsRecord(kVaultline, "split");
    vaultline.text = QStringLiteral("Vaultline");
    child(vaultline, owner, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    child(vaultline, owner, "ID_VL_SAVE", "command")->text = QStringLiteral("~Save");
    child(vaultline, owner, "id_vl_open", "command")->text = QStringLiteral("Open too");
    RibbonItem after = RibbonModel::addInsRecord(kPartKit);
    host.load(before);
    host.load(vaultline);
    host.load(after);
    const CFxUIRibbonButton* split = RibbonModel::addInsButton(host.mainGroup(), kVaultline);

    DebugLog log;
    host.setVisibility("Id_Vl_Open", false);
    EXPECT_EQ(RibbonModel::texts(split->GetSubButtons()),
              (QStringList{"~Open", "~Save", "~Open too"}));
    EXPECT_EQ(log.messages(), (QStringList{"Compare", "Vaultline"}))
        << "the buttons looked at, up to the split button";
    EXPECT_EQ(log.origins().first(), "RibbonMenuItemWrapper:21 void __cdecl "
                                     "SetRibbonItemVisibility(const class QString &,bool)");

    host.setVisibility("ID_VL_OPEN", false);
    EXPECT_EQ(RibbonModel::texts(split->GetSubButtons()),
              (QStringList{"~Open", "~Save", "~Open too"}));
    host.setVisibility("ID_VL_OPEN", true);
    host.setVisibility("ID_VL_SAVE", true);
    EXPECT_EQ(RibbonModel::texts(split->GetSubButtons()),
              (QStringList{"Open", "Save", "Open too"}));
    host.setVisibility("ID_VL_OPEN", true);
    EXPECT_EQ(RibbonModel::texts(split->GetSubButtons()),
              (QStringList{"Open", "Save", "Open too"}));
}

TEST(RibbonVisibility, SwitchesOnlyTheSplitButtonOfTheExactIdentifier)
{
    RibbonHost host;
    Records owner;
    RibbonItem lookalike = RibbonModel::addInsRecord("ID_VaultLine_Item", "split");
    child(lookalike, owner, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    RibbonItem elsewhere = RibbonModel::recordIn(kVaultline, "ID_RibbonHomeTab",
                                                 "ID_RibbonDrawPanel", "ID_SIBLING_ROW");
    elsewhere.type = QStringLiteral("split");
    child(elsewhere, owner, "ID_VL_OPEN", "command")->text = QStringLiteral("Open");
    host.load(lookalike);
    host.load(elsewhere);

    DebugLog log;
    host.setVisibility("ID_VL_OPEN", false);
    EXPECT_EQ(
        RibbonModel::texts(
            RibbonModel::addInsButton(host.mainGroup(), "ID_VaultLine_Item")->GetSubButtons()),
        QStringList{"Open"});
    EXPECT_EQ(RibbonModel::texts(RibbonModel::row(host.mainGroup(), "ID_RibbonHomeTab",
                                                  "ID_RibbonDrawPanel", "ID_SIBLING_ROW")
                                     ->GetButtons()
                                     .GetAt(0)
                                     ->GetSubButtons()),
              QStringList{"Open"})
        << "only the Add-Ins row is looked at";
    EXPECT_EQ(log.messages().size(), 1);
}
