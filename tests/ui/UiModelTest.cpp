// The host's user-interface model: list semantics, ownership, commands and the JSON profile.
#include "EventRecorder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxUI.h>
#include <CFxUIJsonReader.h>
#include <CFxUIJsonWriter.h>
#include <OdError.h>

#include <memory>

namespace {
QString defaultProfile()
{
    return QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json");
}

std::unique_ptr<CFxUI> loadDefault()
{
    auto ui = std::make_unique<CFxUI>();
    CFxUIJsonReader::readFile(defaultProfile(), *ui);
    return ui;
}

QString readError(const QByteArray& json)
{
    CFxUI ui;
    try {
        CFxUIJsonReader::read(QJsonDocument::fromJson(json).object(), ui);
    } catch (const OdError& error) {
        return QString::fromStdWString(error.description().wide());
    }
    return QString();
}

CFxUIGroup* mainGroup(const CFxUI& ui)
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

TEST(UiList, PlacesObjectsOnceAndSurvivesAnchorsItDoesNotHold)
{
    CFxUI ui;
    CFxUIRibbonRow* row = ui.CreateRibbonRow("ROW");
    auto* a = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "A");
    auto* b = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "B");
    auto* c = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "C");
    auto* stranger = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "STRANGER");
    CFxUIList<CFxUIRibbonButton>& buttons = row->GetButtons();

    buttons.Append(a);
    EXPECT_TRUE(buttons.InsertAfter(nullptr, b)) << "a null anchor puts the button first";
    EXPECT_TRUE(buttons.InsertAfter(b, c));
    EXPECT_EQ(ids(buttons), (QStringList{"B", "C", "A"}));

    EXPECT_FALSE(buttons.InsertAfter(stranger, c)) << "an anchor the row does not hold";
    EXPECT_EQ(ids(buttons), (QStringList{"B", "A", "C"})) << "the button goes last, and only once";

    buttons.Append(b);
    EXPECT_EQ(ids(buttons), (QStringList{"A", "C", "B"})) << "adding a held button moves it";
    buttons.InsertAt(99, a);
    EXPECT_EQ(ids(buttons), (QStringList{"C", "B", "A"}));
    EXPECT_EQ(buttons.GetAt(3), nullptr);
    EXPECT_EQ(buttons.GetAt(-1), nullptr);
    EXPECT_TRUE(buttons.Remove(b));
    EXPECT_FALSE(buttons.Remove(b));
    EXPECT_EQ(buttons.GetCount(), 2);
}

TEST(UiModel, FactoriesRefuseUnknownButtonKindsAndFindCommandsInTheirGroupOnly)
{
    CFxUI ui;
    EXPECT_EQ(ui.CreateRibbonButton(5, "X"), nullptr);
    EXPECT_EQ(ui.CreateRibbonButton(CFxUIRibbonButton::kSeparator, "")->GetKind(),
              CFxUIRibbonButton::kSeparator);

    CFxUIGroup* main = ui.CreateMenuGroup("QUILLON");
    CFxUIGroup* other = ui.CreateMenuGroup("CUSTOM");
    ui.GetMenuGroups().Append(main);
    ui.GetMenuGroups().Append(other);
    CFxUICommand* listed = ui.CreateCommand("ID_LINE", main);
    ui.CreateCommand("ID_ORPHAN", nullptr);
    EXPECT_EQ(ui.FindCommand("quillon", "id_line"), listed) << "identifiers ignore letter case";
    EXPECT_EQ(ui.FindCommand("CUSTOM", "ID_LINE"), nullptr);
    EXPECT_EQ(ui.FindCommand("QUILLON", "ID_ORPHAN"), nullptr)
        << "only the group's command list counts";
    EXPECT_EQ(ui.FindCommand("NOGROUP", "ID_LINE"), nullptr);
}

TEST(UiModel, DeletingACommandLeavesNothingPointingAtIt)
{
    CFxUI ui;
    CFxUIGroup* group = ui.CreateMenuGroup("QUILLON");
    ui.GetMenuGroups().Append(group);
    CFxUICommand* command = ui.CreateCommand("ID_GONE", group);
    auto* button = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, "B");
    button->AttachCommand(command);
    CFxUIRibbonSystemMenuItem* entry = ui.CreateRibbonSystemMenuItem("RSMI_X");
    entry->AttachCommand(command);
    CFxUICommand* kept = ui.CreateCommand("ID_KEPT", group);

    ui.DeleteCommand(command);
    EXPECT_EQ(button->GetCommand(), nullptr);
    EXPECT_EQ(entry->GetCommand(), nullptr);
    EXPECT_EQ(group->GetCommands().GetCount(), 1);
    EXPECT_EQ(group->GetCommands().GetAt(0), kept);

    CFxUI otherUi;
    CFxUICommand* foreign = otherUi.CreateCommand("ID_FOREIGN", nullptr);
    ui.DeleteCommand(foreign);
    ui.DeleteCommand(nullptr);
    EXPECT_EQ(foreign->GetIdentifier().toQString(), QStringLiteral("ID_FOREIGN"))
        << "not ours: untouched";
}

TEST(UiModel, GroupIteratorWalksTheGroupsAsTheyWereWhenItWasMade)
{
    CFxUI ui;
    CFxUIGroup* first = ui.CreateMenuGroup("FIRST");
    ui.GetMenuGroups().Append(first);
    std::unique_ptr<CFxUIGroupIterator> iterator(ui.NewGroupIterator());
    ui.GetMenuGroups().Append(ui.CreateMenuGroup("LATER"));
    ASSERT_FALSE(iterator->Done());
    EXPECT_EQ(iterator->Current(), first);
    iterator->Next();
    EXPECT_TRUE(iterator->Done());
    EXPECT_EQ(iterator->Current(), nullptr);
    iterator->Next();
    EXPECT_TRUE(iterator->Done());
}

TEST(UiModel, UpdateIsReportedAndReachesTheHostsWindow)
{
    CFxUI ui;
    int updates = 0;
    ui.SetUpdateHandler([&updates] { ++updates; });
    EventRecorder recorder;
    ui.Update();
    ui.Update();
    EXPECT_EQ(updates, 2);
    EXPECT_EQ(recorder.events().count(QStringLiteral("ui-updated")), 2);
}

TEST(UiProfile, DefaultProfileBuildsAPlausibleHost)
{
    const auto ui = loadDefault();
    ASSERT_NE(ui->GetReferenceMenuGroup(), nullptr);
    CFxUIGroup* main = mainGroup(*ui);
    ASSERT_NE(main, nullptr);
    EXPECT_NE(main, ui->GetReferenceMenuGroup());
    EXPECT_TRUE(main->IsEditable());

    // Every entry of a pull-down menu shows an item that its group holds.
    int entries = 0;
    for (const CFxUIPullDownMenu* menu : main->GetPullDownMenus()) {
        for (const CFxUIMenuEntry* entry : menu->GetEntries()) {
            ASSERT_NE(entry->GetItem(), nullptr);
            EXPECT_TRUE(main->GetMenuItems().Contains(entry->GetItem()));
            EXPECT_EQ(entry->GetIdentifier(), entry->GetItem()->GetIdentifier());
            ++entries;
        }
    }
    EXPECT_EQ(main->GetMenuItems().GetCount(), entries);

    // A tab's panels stand in the group's panel list too; the workspace shows the group's tabs.
    for (const CFxUIRibbonTab* tab : main->GetRibbonTabs()) {
        for (const CFxUIRibbonPanel* panel : tab->GetPanels())
            EXPECT_TRUE(main->GetRibbonPanels().Contains(panel));
    }
    const CFxUIWorkspace* drafting = ui->FindWorkspace("drafting and annotation");
    ASSERT_NE(drafting, nullptr);
    ASSERT_GT(drafting->GetRibbonTabs().GetCount(), 0);
    EXPECT_TRUE(main->GetRibbonTabs().Contains(drafting->GetRibbonTabs().GetAt(0)));

    // Buttons run the group's own commands.
    const CFxUIRibbonButton* line = main->GetRibbonTabs()
                                        .GetAt(0)
                                        ->GetPanels()
                                        .GetAt(0)
                                        ->GetRows()
                                        .GetAt(0)
                                        ->GetButtons()
                                        .GetAt(0);
    ASSERT_NE(line->GetCommand(), nullptr);
    EXPECT_TRUE(main->GetCommands().Contains(line->GetCommand()));
}

TEST(UiProfile, WritingAndReadingAgainGivesTheSameModel)
{
    const auto ui = loadDefault();
    CFxUI* model = ui.get();
    // An attached command outside any command list, and a separator, must survive the trip.
    CFxUIRibbonSystemMenuItem* rsm = mainGroup(*model)->GetApplicationMenu().GetAt(0);
    CFxUIRibbonSystemMenuItem* extra = model->CreateRibbonSystemMenuItem("RSMI_EXTRA");
    CFxUICommand* unlisted = model->CreateCommand("ID_UNLISTED", nullptr);
    unlisted->SetMacro("_UNLISTED");
    unlisted->SetLargeIcon(":/a.png", "");
    extra->AttachCommand(unlisted);
    rsm->GetSubItems().Append(model->CreateRibbonSystemMenuItem("ID_SEPARATOR"));
    rsm->GetSubItems().Append(extra);

    const QJsonObject written = CFxUIJsonWriter::write(*model);
    CFxUI reread;
    CFxUIJsonReader::read(written, reread);
    EXPECT_EQ(CFxUIJsonWriter::write(reread), written);
    const QJsonArray items = written[QStringLiteral("groups")][1][QStringLiteral("applicationMenu")]
                                    [0][QStringLiteral("items")]
                                        .toArray();
    EXPECT_TRUE(items[items.size() - 2][QStringLiteral("separator")].toBool());
    EXPECT_EQ(items.last()[QStringLiteral("command")][QStringLiteral("macro")].toString(),
              QStringLiteral("_UNLISTED"));
}

TEST(UiProfile, RefusesMalformedProfilesSayingWhere)
{
    EXPECT_TRUE(readError(R"({"groups":[{"id":"G","menus":[{"id":"M","colour":1}]}]})")
                    .startsWith(QStringLiteral("/groups/0/menus/0: unknown field 'colour'")));
    EXPECT_TRUE(readError(R"({"groups":[{"main":true}]})")
                    .startsWith(QStringLiteral("/groups/0: 'id' must be a string")));
    EXPECT_TRUE(readError(R"({"groups":[{"id":"G","main":"yes"}]})")
                    .contains(QStringLiteral("true or false")));
    EXPECT_TRUE(readError(R"({"groups":[{"id":"A","reference":true},{"id":"B","reference":true}]})")
                    .startsWith(QStringLiteral("/groups/1: only one group")));
    EXPECT_TRUE(
        readError(
            R"({"groups":[{"id":"G","tabs":[{"id":"T","panels":[{"id":"P","rows":[{"id":"R","buttons":[{"kind":"big"}]}]}]}]}]})")
            .startsWith(QStringLiteral("/groups/0/tabs/0/panels/0/rows/0/buttons/0: 'kind'")));
    EXPECT_TRUE(
        readError(R"({"groups":[{"id":"G","applicationMenu":[{"id":"RSM","command":"ID_NONE"}]}]})")
            .contains(QStringLiteral("no command 'ID_NONE'")));
    EXPECT_TRUE(readError(R"({"workspaces":[{"name":"W","tabs":["ID_NOTAB"]}]})")
                    .contains(QStringLiteral("no tab 'ID_NOTAB'")));
    EXPECT_TRUE(
        readError(R"({"menus":[]})").startsWith(QStringLiteral("/: unknown field 'menus'")));
    EXPECT_TRUE(
        readError(
            R"({"groups":[{"id":"G","tabs":[{"id":"T","panels":[{"id":"P","launcher":0.5}]}]}]})")
            .contains(QStringLiteral("whole number")));
}

TEST(UiProfile, AFileThatIsNoProfileIsNamedInTheError)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("broken.json"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"groups\": [");
    file.close();
    CFxUI ui;
    try {
        CFxUIJsonReader::readFile(path, ui);
        FAIL() << "a broken file was read";
    } catch (const OdError& error) {
        const QString message = QString::fromStdWString(error.description().wide());
        EXPECT_TRUE(message.startsWith(path + QStringLiteral(": not valid JSON")))
            << qPrintable(message);
    }
    EXPECT_THROW(CFxUIJsonReader::readFile(folder.filePath(QStringLiteral("missing.json")), ui),
                 OdError);
}
