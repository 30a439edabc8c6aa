// The host's user-interface model: list semantics, commands and the JSON profile.
#include "TestPrinters.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxHostUI.h>
#include <CFxJsonTextWriter.h>
#include <CFxUIJsonReader.h>
#include <CFxUIJsonWriter.h>
#include <OdError.h>

#include <array>
#include <functional>
#include <vector>

namespace {
QString errorOf(const std::function<void()>& read)
{
    try {
        read();
    } catch (const OdError& error) {
        return toQString(error.description());
    }
    return "<read without error>";
}

CFxUIGroup* mainGroup(const CFxHostUI& ui)
{
    for (CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group->IsMainGroup())
            return group;
    }
    return nullptr;
}

QStringList ids(const CFxUIList<CFxUIRibbonButton>& list)
{
    QStringList result;
    for (const CFxUIRibbonButton* item : list)
        result << item->GetIdentifier().toQString();
    return result;
}
} // namespace

TEST(UiList, HoldsAnObjectOnceAndPutsItLastAfterAnAnchorItDoesNotHold)
{
    CFxHostUI ui;
    auto* a = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "A");
    auto* b = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "B");
    auto* c = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "C");
    auto* stranger = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "STRANGER");
    CFxUIList<CFxUIRibbonButton> buttons;

    buttons.Append(a);
    EXPECT_TRUE(buttons.InsertAfter(nullptr, b)) << "a null anchor puts the button first";
    EXPECT_TRUE(buttons.InsertAfter(b, c));
    EXPECT_EQ(ids(buttons), QStringList({"B", "C", "A"}));
    EXPECT_FALSE(buttons.InsertAfter(stranger, c));
    EXPECT_EQ(ids(buttons), QStringList({"B", "A", "C"})) << "the button goes last, and only once";
    buttons.Append(b);
    EXPECT_EQ(ids(buttons), QStringList({"A", "C", "B"})) << "adding a held button moves it";
    buttons.InsertAt(99, a);
    EXPECT_EQ(ids(buttons), QStringList({"C", "B", "A"}));
}

TEST(UiList, FindsTheFirstHolderOfAnIdentifierInAnyCaseAsEntriesComeGoAndAreRenamed)
{
    CFxHostUI ui;
    auto* first = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "DUP");
    auto* second = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "dup");
    auto* umlaut = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "\xc3\x84RGER");
    auto* renamed = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "OLD");
    CFxUIList<CFxUIRibbonButton> buttons;
    for (auto* button : {first, second, umlaut, renamed})
        buttons.Append(button);

    EXPECT_EQ(buttons.FindFirst("Dup"), first);
    EXPECT_EQ(buttons.FindFirst("\xc3\xa4rger"), umlaut) << "letters beyond ASCII fold too";
    EXPECT_EQ(buttons.FindFirst("DUPE"), nullptr);
    buttons.InsertAfter(nullptr, second);
    EXPECT_EQ(buttons.FindFirst("DUP"), second) << "the first in the list's order";
    buttons.Remove(second);
    EXPECT_EQ(buttons.FindFirst("DUP"), first);
    buttons.Remove(first);
    EXPECT_EQ(buttons.FindFirst("DUP"), nullptr);
    renamed->SetIdentifier("NEW");
    EXPECT_EQ(buttons.FindFirst("old"), nullptr);
    EXPECT_EQ(buttons.FindFirst("new"), renamed) << "a renamed entry is found by its new name";
    buttons.Append(first);

    // Reading by index, forwards and backwards, agrees with walking the list.
    QStringList forwards, backwards;
    for (int i = 0; i < buttons.GetCount(); ++i)
        forwards << buttons.GetAt(i)->GetIdentifier().toQString();
    for (int i = buttons.GetCount() - 1; i >= 0; --i)
        backwards.prepend(buttons.GetAt(i)->GetIdentifier().toQString());
    EXPECT_EQ(forwards, ids(buttons));
    EXPECT_EQ(backwards, ids(buttons));
    EXPECT_EQ(buttons.GetAt(buttons.GetCount()), nullptr);
    EXPECT_EQ(buttons.IndexOf(first), 2);
}

TEST(UiModel, CommandsAreFoundInTheirGroupAndADeletedOneIsReferredToNowhere)
{
    CFxHostUI ui;
    CFxUIGroup* group = ui.CreateMenuGroup("QUILLON");
    ui.GetMenuGroups().Append(group);
    ui.GetMenuGroups().Append(ui.CreateMenuGroup("CUSTOM"));
    CFxUICommand* command = ui.CreateCommand("ID_GONE", group);
    CFxUICommand* kept = ui.CreateCommand("ID_KEPT", group);
    EXPECT_EQ(ui.FindCommand("quillon", "id_gone"), command) << "identifiers ignore letter case";
    EXPECT_EQ(ui.FindCommand("CUSTOM", "ID_GONE"), nullptr);
    auto* button = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "B");
    button->AttachCommand(command);
    CFxUIRibbonSystemMenuItem* entry = ui.CreateRibbonSystemMenuItem("RSMI_X");
    entry->AttachCommand(command);

    auto* moved = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "MOVED");
    moved->AttachCommand(command);
    moved->AttachCommand(kept);
    CFxUIGroup* outside = ui.CreateMenuGroup("NOT_IN_THE_MODEL");
    outside->GetCommands().Append(command);

    ui.DeleteCommand(command);
    EXPECT_EQ(moved->GetCommand(), kept) << "a button that ran it before keeps what it runs now";
    EXPECT_FALSE(outside->GetCommands().Contains(command)) << "every group made leaves it";
    EXPECT_EQ(button->GetCommand(), nullptr);
    EXPECT_EQ(entry->GetCommand(), nullptr);
    EXPECT_EQ(group->GetCommands().GetCount(), 1);
    EXPECT_EQ(ui.FindCommand("QUILLON", "ID_KEPT"), kept);

    CFxHostUI otherUi;
    CFxUICommand* foreign = otherUi.CreateCommand("ID_FOREIGN", nullptr);
    ui.DeleteCommand(foreign);
    ui.DeleteCommand(nullptr);
    EXPECT_EQ(foreign->GetIdentifier().toQString(), "ID_FOREIGN") << "not ours: untouched";
}

TEST(UiProfile, TheDefaultProfileLinksItsObjectsAndSurvivesWritingAndReading)
{
    CFxHostUI ui;
    CFxUIJsonReader::readFile(EC_SOURCE_DIR "/host/profiles/default.json", ui);
    CFxUIGroup* main = mainGroup(ui);
    ASSERT_NE(main, nullptr);
    // A workspace shows the group's own tabs, and a button runs one of the group's commands.
    const CFxUIWorkspace* drafting = ui.FindWorkspace("drafting and annotation");
    ASSERT_NE(drafting, nullptr);
    EXPECT_TRUE(main->GetRibbonTabs().Contains(drafting->GetRibbonTabs().GetAt(0)));
    CFxUIRibbonRow* row = main->GetRibbonTabs().GetAt(0)->GetPanels().GetAt(0)->GetRows().GetAt(0);
    EXPECT_TRUE(main->GetCommands().Contains(row->GetButtons().GetAt(0)->GetCommand()));

    // An attached command outside any command list, and a separator, must survive the trip.
    CFxUIRibbonSystemMenuItem* rsm = main->GetApplicationMenu().GetAt(0);
    CFxUIRibbonSystemMenuItem* extra = ui.CreateRibbonSystemMenuItem("RSMI_EXTRA");
    CFxUICommand* unlisted = ui.CreateCommand("ID_UNLISTED", nullptr);
    unlisted->SetMacro("_UNLISTED");
    extra->AttachCommand(unlisted);
    rsm->GetSubItems().Append(ui.CreateRibbonSystemMenuItem("ID_SEPARATOR"));
    rsm->GetSubItems().Append(extra);

    // Split buttons nested, texts that JSON must escape, lists left empty.
    CFxUIRibbonButton* split = ui.CreateRibbonButton(CFxUIRibbonButton::kSplit, "ID_SPLIT");
    split->SetText("tab\t\"quote\" back\\ bell\x07 café 平面");
    split->GetSubButtons().Append(ui.CreateRibbonButton(CFxUIRibbonButton::kSplit, "ID_INNER"));
    split->GetSubButtons().GetAt(0)->GetSubButtons().Append(
        ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "ID_LEAF"));
    split->GetSubButtons().GetAt(0)->GetSubButtons().GetAt(0)->AttachCommand(unlisted);
    row->GetButtons().Append(split);
    ui.GetMenuGroups().Append(ui.CreateMenuGroup("EMPTY"));

    const QJsonObject written = CFxUIJsonWriter::write(ui);
    for (const auto format : {QJsonDocument::Compact, QJsonDocument::Indented})
        EXPECT_EQ(CFxUIJsonWriter::writeText(ui, format == QJsonDocument::Compact),
                  QJsonDocument(written).toJson(format))
            << format;
    CFxHostUI reread;
    CFxUIJsonReader::read(written, reread);
    EXPECT_EQ(CFxUIJsonWriter::write(reread), written);
    const QJsonArray items = written["groups"][1]["applicationMenu"][0]["items"].toArray();
    EXPECT_TRUE(items[items.size() - 2]["separator"].toBool());
    EXPECT_EQ(items.last()["command"]["macro"].toString(), "_UNLISTED");
}

TEST(UiProfile, ErrorsNameThePlaceInTheProfileOrTheFile)
{
    const char* const tabs = R"({"groups":[{"id":"G","tabs":[{"id":"T","panels":[{"id":"P",)";
    const std::vector<std::array<QString, 3>> cases = {
        {R"({"groups":[{"id":"G","menus":[{"id":"M","colour":1}]}]})", "/groups/0/menus/0",
         "unknown field 'colour'"},
        {R"({"groups":[{"main":true}]})", "/groups/0", "'id' must be a string"},
        {R"({"groups":[{"id":"G","main":"yes"}]})", "/groups/0", "true or false"},
        {R"({"groups":[{"id":"A","reference":true},{"id":"B","reference":true}]})", "/groups/1",
         "only one group"},
        {tabs + QString(R"("rows":[{"id":"R","buttons":[{"kind":"big"}]}]}]}]}]})"),
         "/groups/0/tabs/0/panels/0/rows/0/buttons/0", "'kind'"},
        {tabs + QString(R"("launcher":0.5}]}]}]})"), "/groups/0/tabs/0/panels/0", "whole number"},
        {R"({"groups":[{"id":"G","applicationMenu":[{"id":"RSM","command":"ID_NONE"}]}]})",
         "/groups/0/applicationMenu/0", "no command 'ID_NONE'"},
        {R"({"workspaces":[{"name":"W","tabs":["ID_NOTAB"]}]})", "/workspaces/0",
         "no tab 'ID_NOTAB'"},
        {R"({"menus":[]})", "/", "unknown field 'menus'"},
        // What the host looks up by identifier, in any letter case, is there once.
        {R"({"groups":[{"id":"G"},{"id":"g"}]})", "/groups/1",
         "a second group 'g' (the first is /groups/0)"},
        {R"({"groups":[{"id":"A","main":true},{"id":"B"},{"id":"C","main":true}]})", "/groups/2",
         "a second main group (the first is /groups/0)"},
        {R"({"groups":[{"id":"G","commands":[{"id":"C"},{"id":"D"},{"id":"c"}]}]})",
         "/groups/0/commands/2",
         "a second command in the group 'c' (the first is "
         "/groups/0/commands/0)"},
        {R"({"groups":[{"id":"A","tabs":[{"id":"T"}]},{"id":"B","tabs":[{"id":"t"}]}]})",
         "/groups/1/tabs/0", "a second tab 't' (the first is /groups/0/tabs/0)"},
        {R"({"groups":[{"id":"G","menus":[{"id":"M"},{"id":"M"}]}]})", "/groups/0/menus/1",
         "a second menu in the group 'M' (the first is /groups/0/menus/0)"},
        {R"({"groups":[{"id":"G","commands":[{"id":"C","largeIcon":["a","b","c"]}]}]})",
         "/groups/0/commands/0", "'largeIcon' holds 3 icons"},
    };
    for (const auto& bad : cases) {
        CFxHostUI ui;
        const QString error = errorOf(
            [&] { CFxUIJsonReader::read(QJsonDocument::fromJson(bad[0].toUtf8()).object(), ui); });
        EXPECT_TRUE(error.startsWith(bad[1] + ": ") && error.contains(bad[2])) << qPrintable(error);
    }

    QTemporaryDir folder;
    const QString broken = folder.filePath("broken.json");
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"groups\": [");
    file.close();
    for (const auto& bad : {std::pair(broken, "not valid JSON"),
                            std::pair(folder.filePath("missing.json"), "cannot be read")}) {
        CFxHostUI ui;
        const QString error = errorOf([&] { CFxUIJsonReader::readFile(bad.first, ui); });
        EXPECT_TRUE(error.startsWith(bad.first + ": " + bad.second)) << qPrintable(error);
    }
}

// Groups may share command and menu identifiers; a large profile is read whole, each workspace
// tab and each attached command found by its identifier.
TEST(UiProfile, ThousandsOfTabsAndCommandsAreReadAndFoundByIdentifier)
{
    constexpr int tabCount = 20000;
    constexpr int commandCount = 100000;
    QJsonArray commands, tabs, workspaceTabs;
    for (int i = 0; i < commandCount; ++i)
        commands.append(QJsonObject{{"id", QString("ID_C%1").arg(i)}});
    for (int i = 0; i < tabCount; ++i) {
        const QJsonObject button{{"id", "B"}, {"command", QString("id_c%1").arg(i * 5 + 4)}};
        const QJsonObject row{{"id", "R"}, {"buttons", QJsonArray{button}}};
        const QJsonObject panel{{"id", QString("P%1").arg(i)}, {"rows", QJsonArray{row}}};
        tabs.append(QJsonObject{{"id", QString("T%1").arg(i)}, {"panels", QJsonArray{panel}}});
        workspaceTabs.prepend(QString("t%1").arg(i));
    }
    const QJsonArray sibling{QJsonObject{{"id", "ID_C0"}}};
    const QJsonObject profile{
        {"groups", QJsonArray{QJsonObject{{"id", "MAIN"},
                                          {"main", true},
                                          {"commands", commands},
                                          {"menus", QJsonArray{QJsonObject{{"id", "M"}}}},
                                          {"tabs", tabs}},
                              QJsonObject{{"id", "SIBLING"},
                                          {"commands", sibling},
                                          {"menus", QJsonArray{QJsonObject{{"id", "M"}}}}}}},
        {"workspaces", QJsonArray{QJsonObject{{"name", "W"}, {"tabs", workspaceTabs}}}}};

    CFxHostUI ui;
    CFxUIJsonReader::read(profile, ui);
    const CFxUIWorkspace* workspace = ui.FindWorkspace("W");
    ASSERT_NE(workspace, nullptr);
    ASSERT_EQ(workspace->GetRibbonTabs().GetCount(), tabCount);
    for (int i : {0, 1, tabCount / 2, tabCount - 1}) {
        const CFxUIRibbonTab* tab = workspace->GetRibbonTabs().GetAt(tabCount - 1 - i);
        EXPECT_EQ(tab->GetIdentifier().toQString(), QString("T%1").arg(i));
        const CFxUIRibbonButton* button =
            tab->GetPanels().GetAt(0)->GetRows().GetAt(0)->GetButtons().GetAt(0);
        EXPECT_EQ(button->GetCommand()->GetIdentifier().toQString(),
                  QString("ID_C%1").arg(i * 5 + 4));
    }
    EXPECT_EQ(mainGroup(ui)->GetCommands().GetCount(), commandCount);
}

// Indented text of a document nested far deeper than any model stays valid JSON, but its lines
// stop moving right, so that its size grows with the document's and not with its square.
TEST(JsonText, DeepDocumentsAreIndentedOnlySoFar)
{
    constexpr int depth = 200;
    QByteArray texts[2];
    for (bool compact : {true, false}) {
        CFxJsonTextWriter out(compact);
        for (int i = 0; i < depth; ++i) {
            out.beginObject();
            out.key("next");
        }
        out.value(QStringLiteral("end"));
        for (int i = 0; i < depth; ++i)
            out.endObject();
        texts[compact] = out.take();
    }
    QJsonParseError error{};
    EXPECT_EQ(QJsonDocument::fromJson(texts[false], &error), QJsonDocument::fromJson(texts[true]))
        << qPrintable(error.errorString());
    int widest = 0;
    for (const QByteArray& line : texts[false].split('\n'))
        widest = std::max(widest, static_cast<int>(line.size() - line.trimmed().size()));
    EXPECT_EQ(widest, 4 * int(CFxJsonTextWriter::kMaxIndentLevel));
}
