// The host window's parts in this process, on the offscreen platform: what the ribbon shows
// of the model and how it follows it, what the canvas makes of a drawing, and the command line.
#include "CommandLineEdit.h"
#include "DrawingScene.h"
#include "RibbonWidget.h"
#include "TestPrinters.h"
#include "UiSignature.h"

#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <CFxHostUI.h>
#include <OdDbDxfDatabase.h>

#include <memory>

namespace {
// A model with a main group and the workspace the ribbon shows, and a row to put buttons in.
class RibbonModel
{
public:
    RibbonModel()
        : main(ui.CreateMenuGroup(CFxString(QStringLiteral("QUILLON")))),
          workspace(ui.CreateWorkspace(RibbonWidget::workspaceName()))
    {
        CFxHostUI::SetMainGroup(*main, true);
        ui.GetMenuGroups().Append(main);
        ui.GetWorkspaces().Append(workspace);
    }

    // A tab of `group` (the main group when null), listed in the workspace.
    CFxUIRibbonTab* addTab(const QString& identifier, const QString& caption,
                           CFxUIGroup* group = nullptr)
    {
        CFxUIRibbonTab* tab = ui.CreateRibbonTab(CFxString(identifier));
        tab->SetCaption(CFxString(caption));
        (group ? group : main)->GetRibbonTabs().Append(tab);
        workspace->GetRibbonTabs().Append(tab);
        return tab;
    }

    CFxUIGroup* addGroup(const QString& identifier)
    {
        CFxUIGroup* group = ui.CreateMenuGroup(CFxString(identifier));
        ui.GetMenuGroups().Append(group);
        return group;
    }

    CFxUIRibbonRow* addRow(CFxUIRibbonTab* tab)
    {
        CFxUIRibbonPanel* panel = ui.CreateRibbonPanel(CFxString(QStringLiteral("P")));
        CFxUIRibbonRow* row = ui.CreateRibbonRow(CFxString(QStringLiteral("R")));
        panel->GetRows().Append(row);
        tab->GetPanels().Append(panel);
        return row;
    }

    CFxUIRibbonButton* button(int kind, const QString& identifier)
    {
        CFxUIRibbonButton* made = ui.CreateRibbonButton(kind, CFxString(identifier));
        made->SetText(CFxString(identifier));
        return made;
    }

    // A tab holding one command button `identifier`.
    CFxUIRibbonTab* addTabWithButton(const QString& tabId, const QString& caption,
                                     const QString& identifier, CFxUIGroup* group = nullptr)
    {
        CFxUIRibbonTab* tab = addTab(tabId, caption, group);
        addRow(tab)->GetButtons().Append(button(CFxUIRibbonButton::kCommand, identifier));
        return tab;
    }

    CFxHostUI ui;
    CFxUIGroup* main;
    CFxUIWorkspace* workspace;
};

QStringList tabTexts(const RibbonWidget& ribbon)
{
    const auto* tabs = ribbon.findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
    QStringList texts;
    for (int at = 0; at < tabs->count(); ++at)
        texts << tabs->tabText(at);
    return texts;
}

// The menu that `owner` opens, filled as when it is about to show.
QMenu* opened(QMenu* menu)
{
    emit menu->aboutToShow();
    return menu;
}

// The names of the buttons on the page of the tab at `index`, brought to the front.
QStringList buttonsOnTab(RibbonWidget& ribbon, int index)
{
    auto* tabs = ribbon.findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
    tabs->setCurrentIndex(index);
    QStringList names;
    for (const QToolButton* button : tabs->widget(index)->findChildren<QToolButton*>())
        names << button->objectName();
    return names;
}
} // namespace

TEST(HostRibbon, ShowsEachWorkspaceIdentifierOnceAsTheTabTheRibbonHolds)
{
    RibbonModel model;
    model.addTabWithButton(QStringLiteral("ID_Home"), QStringLiteral("Home"), "ID_LINE");
    CFxUIRibbonTab* addIns =
        model.addTabWithButton(QStringLiteral("ID_AddIns"), QStringLiteral("Add-Ins"), "ID_OLD");
    // Listed again in the workspace, in another letter case too, but held by no group.
    CFxUIRibbonTab* stray = model.ui.CreateRibbonTab(CFxString(QStringLiteral("id_home")));
    stray->SetCaption(CFxString(QStringLiteral("Home again")));
    model.workspace->GetRibbonTabs().Append(stray);
    model.addTab(QStringLiteral("ID_View"), QStringLiteral("View"));
    RibbonWidget ribbon;
    ribbon.showModel(model.ui);
    EXPECT_EQ(tabTexts(ribbon), QStringList({"Home", "Add-Ins", "View"}));

    // A sibling takes the last button out: the tab leaves the main group, not the workspace.
    model.main->GetRibbonTabs().Remove(addIns);
    ribbon.showModel(model.ui);
    EXPECT_EQ(tabTexts(ribbon), QStringList({"Home", "View"}));

    // ...and loads again: a new tab under the same identifier, listed in the workspace after
    // the old one. The new one is shown, in the place where the identifier was first listed.
    model.addTabWithButton(QStringLiteral("ID_ADDINS"), QStringLiteral("Add-Ins"), "ID_NEW");
    ribbon.showModel(model.ui);
    EXPECT_EQ(tabTexts(ribbon), QStringList({"Home", "Add-Ins", "View"}));
    EXPECT_EQ(buttonsOnTab(ribbon, 1), QStringList({"ID_NEW"}));

    // A tab of another group is shown when the main group has none of its identifier; the
    // reference group's copy is never shown.
    CFxUIGroup* reference = model.addGroup(QStringLiteral("QUILLON_REFERENCE"));
    model.ui.SetReferenceMenuGroup(reference);
    model.addTabWithButton(QStringLiteral("ID_Copy"), QStringLiteral("Copy"), "ID_C", reference);
    CFxUIGroup* custom = model.addGroup(QStringLiteral("CUSTOM"));
    model.addTabWithButton(QStringLiteral("ID_Mine"), QStringLiteral("Mine"), "ID_M", custom);
    model.addTabWithButton(QStringLiteral("ID_View"), QStringLiteral("Not this"), "ID_X", custom);
    ribbon.showModel(model.ui);
    EXPECT_EQ(tabTexts(ribbon), QStringList({"Home", "Add-Ins", "View", "Mine"}));
    EXPECT_EQ(buttonsOnTab(ribbon, 3), QStringList({"ID_M"}));
    EXPECT_EQ(RibbonWidget::shownTabs(model.ui)[0]->GetPanels().GetCount(), 1)
        << "the main group's Home, not the stray one";
}

TEST(HostRibbon, RedrawsOnlyTheTabThatChanged)
{
    RibbonModel model;
    CFxUIRibbonRow* row = model.addRow(model.addTab(QStringLiteral("T1"), QStringLiteral("One")));
    CFxUIRibbonButton* first = model.button(CFxUIRibbonButton::kCommand, QStringLiteral("ID_A"));
    row->GetButtons().Append(first);
    CFxUIRibbonRow* other = model.addRow(model.addTab(QStringLiteral("T2"), QStringLiteral("Two")));
    RibbonWidget ribbon;
    ribbon.showModel(model.ui);
    QPointer<QToolButton> shown = ribbon.findChild<QToolButton*>(QStringLiteral("ID_A"));
    ASSERT_TRUE(shown);

    other->GetButtons().Append(model.button(CFxUIRibbonButton::kCommand, QStringLiteral("ID_B")));
    ribbon.showModel(model.ui);
    EXPECT_EQ(ribbon.findChild<QToolButton*>(QStringLiteral("ID_A")), shown.data())
        << "a tab that did not change keeps its widgets";
    EXPECT_EQ(ribbon.findChild<QToolButton*>(QStringLiteral("ID_B")), nullptr)
        << "a tab that is not in front is built when it is shown";

    first->SetText(CFxString(QStringLiteral("Renamed")));
    ribbon.showModel(model.ui);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull());
    const auto* renamed = ribbon.findChild<QToolButton*>(QStringLiteral("ID_A"));
    ASSERT_NE(renamed, nullptr);
    EXPECT_EQ(renamed->text(), "Renamed");

    auto* tabs = ribbon.findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
    tabs->setCurrentIndex(1);
    EXPECT_NE(ribbon.findChild<QToolButton*>(QStringLiteral("ID_B")), nullptr);

    // Back to a tab that did not change since it was built, after another redraw: as it was.
    QPointer<QToolButton> kept = ribbon.findChild<QToolButton*>(QStringLiteral("ID_A"));
    ribbon.showModel(model.ui);
    tabs->setCurrentIndex(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(kept) << "an unchanged tab is not built again when it comes to the front";
    EXPECT_EQ(ribbon.findChild<QToolButton*>(QStringLiteral("ID_A")), kept.data());

    // A tab that changed while it was behind shows the change when it comes to the front,
    // with or without a redraw in between.
    tabs->setCurrentIndex(1);
    row->GetButtons().Append(model.button(CFxUIRibbonButton::kCommand, QStringLiteral("ID_C")));
    tabs->setCurrentIndex(0);
    EXPECT_NE(ribbon.findChild<QToolButton*>(QStringLiteral("ID_C")), nullptr);
}

TEST(HostUiSignature, TellsEveryCharacterOfAText)
{
    RibbonModel model;
    CFxUIRibbonRow* row = model.addRow(model.addTab(QStringLiteral("T"), QStringLiteral("T")));
    CFxUIRibbonButton* button = model.button(CFxUIRibbonButton::kCommand, QStringLiteral("B"));
    row->GetButtons().Append(button);
    // Texts of every length around the steps the fingerprint takes, changed at every place.
    for (int length = 1; length <= 9; ++length) {
        const QString text(length, QLatin1Char('a'));
        button->SetText(CFxString(text));
        const quint64 before = UiSignature::ofTab(*model.workspace->GetRibbonTabs().GetAt(0));
        for (int at = 0; at < length; ++at) {
            QString changed = text;
            changed[at] = QLatin1Char('b');
            button->SetText(CFxString(changed));
            EXPECT_NE(UiSignature::ofTab(*model.workspace->GetRibbonTabs().GetAt(0)), before)
                << "length " << length << ", character " << at;
        }
        button->SetText(CFxString(text + QLatin1Char('a')));
        EXPECT_NE(UiSignature::ofTab(*model.workspace->GetRibbonTabs().GetAt(0)), before)
            << "one character longer, length " << length;
        button->SetText(CFxString(text));
        EXPECT_EQ(UiSignature::ofTab(*model.workspace->GetRibbonTabs().GetAt(0)), before)
            << "the same text again, length " << length;
    }
}

TEST(HostRibbon, SplitButtonsNestedVeryDeepAreShownLevelByLevel)
{
    // Deeper than a widget per level, or a recursion per level, could ever draw.
    constexpr int depth = 100000;
    RibbonModel model;
    CFxUIRibbonRow* row = model.addRow(model.addTab(QStringLiteral("T"), QStringLiteral("T")));
    CFxUIRibbonButton* top = model.button(CFxUIRibbonButton::kSplit, QStringLiteral("L0"));
    row->GetButtons().Append(top);
    CFxUIRibbonButton* parent = top;
    for (int level = 1; level <= depth; ++level) {
        auto* sub =
            model.button(level == depth ? CFxUIRibbonButton::kCommand : CFxUIRibbonButton::kSplit,
                         QStringLiteral("L%1").arg(level));
        parent->GetSubButtons().Append(sub);
        if (level % 2 == 0)
            parent->GetSubButtons().Append(model.button(CFxUIRibbonButton::kSeparator, QString()));
        parent = sub;
    }
    RibbonWidget ribbon;
    ribbon.showModel(model.ui);
    auto* button = ribbon.findChild<QToolButton*>(QStringLiteral("L0"));
    ASSERT_NE(button, nullptr);
    ASSERT_NE(button->menu(), nullptr);
    EXPECT_TRUE(button->menu()->isEmpty()) << "nothing is built before the list opens";
    QMenu* menu = opened(button->menu());
    for (int level = 1; level <= 50; ++level) {
        const QList<QAction*> actions = menu->actions();
        ASSERT_EQ(actions.size(), level % 2 == 0 ? 2 : 1) << "level " << level;
        EXPECT_EQ(actions.first()->text(), QStringLiteral("L%1").arg(level));
        if (level % 2 == 0) {
            EXPECT_TRUE(actions.last()->isSeparator()) << "level " << level;
        }
        ASSERT_NE(actions.first()->menu(), nullptr) << "level " << level;
        menu = opened(actions.first()->menu());
    }
}

namespace {
// The text of an ASCII DXF drawing with these blocks and entities, each given as groups
// "code\nvalue\n...".
QByteArray dxf(const QByteArray& blocks, const QByteArray& entities)
{
    return "0\nSECTION\n2\nBLOCKS\n" + blocks + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities +
           "0\nENDSEC\n0\nEOF\n";
}

QByteArray block(const QByteArray& name, const QByteArray& entities, const QByteArray& path = {})
{
    return "0\nBLOCK\n2\n" + name + "\n70\n" + (path.isEmpty() ? "0" : "4") + "\n10\n0\n20\n0\n" +
           (path.isEmpty() ? QByteArray() : "1\n" + path + "\n") + entities + "0\nENDBLK\n";
}

QByteArray line(double x1, double y1, double x2, double y2)
{
    return QStringLiteral("0\nLINE\n10\n%1\n20\n%2\n11\n%3\n21\n%4\n")
        .arg(x1)
        .arg(y1)
        .arg(x2)
        .arg(y2)
        .toLatin1();
}

QByteArray insert(const QByteArray& name, double x, double y, double scale = 1, double degrees = 0)
{
    return QStringLiteral("0\nINSERT\n2\n%1\n10\n%2\n20\n%3\n41\n%4\n42\n%4\n50\n%5\n")
        .arg(QString::fromLatin1(name))
        .arg(x)
        .arg(y)
        .arg(scale)
        .arg(degrees)
        .toLatin1();
}

class HostCanvasScene : public ::testing::Test
{
protected:
    std::shared_ptr<const DrawingScene> sceneOf(const QString& name, const QByteArray& content)
    {
        write(name, content);
        return DrawingScene::of(*OdDbDxfDatabase::readFile(toOdString(path(name))));
    }
    void write(const QString& name, const QByteArray& content)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

void expectNear(const QPointF& actual, const QPointF& expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-9) << "x";
    EXPECT_NEAR(actual.y(), expected.y(), 1e-9) << "y";
}
} // namespace

TEST_F(HostCanvasScene, DrawsEachKindAndCountsWhatItDoesNotDraw)
{
    const QByteArray entities =
        line(0, 0, 10, 0) +
        "0\nLWPOLYLINE\n70\n1\n10\n0\n20\n0\n10\n4\n20\n0\n10\n4\n20\n3\n"
        "0\nPOLYLINE\n70\n0\n0\nVERTEX\n10\n1\n20\n1\n0\nVERTEX\n10\n2\n20\n5\n0\nSEQEND\n"
        "0\nCIRCLE\n10\n5\n20\n5\n40\n2\n"
        "0\nARC\n10\n0\n20\n0\n40\n1\n50\n350\n51\n10\n"
        "0\nTEXT\n10\n1\n20\n2\n40\n0.5\n1\nROOM\n"
        "0\nHATCH\n2\nSOLID\n0\nHATCH\n2\nANSI31\n0\nELLIPSE\n10\n0\n20\n0\n";
    const auto scene = sceneOf(QStringLiteral("kinds.dxf"), dxf({}, entities));
    EXPECT_EQ(scene->lines().size(), 1);
    ASSERT_EQ(scene->polylines().size(), 2);
    EXPECT_EQ(scene->polylines()[0].size(), 4) << "a closed polyline comes back to its start";
    EXPECT_EQ(scene->polylines()[0].last(), QPointF(0, 0));
    EXPECT_EQ(scene->polylines()[1], QPolygonF(QVector<QPointF>{QPointF(1, 1), QPointF(2, 5)}));
    ASSERT_EQ(scene->circles().size(), 1);
    ASSERT_EQ(scene->arcs().size(), 1);
    EXPECT_DOUBLE_EQ(scene->arcs()[0].spanDegrees, 20) << "an arc across 0 degrees";
    ASSERT_EQ(scene->texts().size(), 1);
    EXPECT_EQ(scene->texts()[0].text, "ROOM");
    EXPECT_EQ(scene->drawnEntities(), 6);
    EXPECT_EQ(scene->undrawnKinds(), (QMap<QString, int>{{"HATCH", 2}, {"ELLIPSE", 1}}));
    EXPECT_EQ(scene->extents(), QRectF(QPointF(-1, -1), QPointF(10, 7)));
}

TEST_F(HostCanvasScene, BlockReferencesAreDrawnPlacedScaledAndTurned)
{
    const QByteArray blocks = block("UNIT", line(0, 0, 1, 0)) +
                              block("PAIR", insert("UNIT", 0, 0) + insert("UNIT", 0, 1));
    const auto scene = sceneOf(QStringLiteral("blocks.dxf"),
                               dxf(blocks, insert("PAIR", 10, 20, 2, 90) + insert("NONE", 0, 0)));
    ASSERT_EQ(scene->lines().size(), 2);
    // The unit line turned a quarter to point up, twice as long, and its copy one unit up in
    // the block, two to the left once turned.
    expectNear(scene->lines()[0].p1(), QPointF(8, 20));
    expectNear(scene->lines()[0].p2(), QPointF(8, 22));
    expectNear(scene->lines()[1].p1(), QPointF(10, 20));
    expectNear(scene->lines()[1].p2(), QPointF(10, 22));
    EXPECT_EQ(scene->undrawnKinds().value("INSERT (no such block)"), 1);
}

TEST_F(HostCanvasScene, BlocksThatReferToEachOtherEndAtADepth)
{
    const QByteArray blocks =
        block("A", line(0, 0, 1, 1) + insert("B", 0, 0)) + block("B", insert("A", 0, 0));
    const auto scene = sceneOf(QStringLiteral("cycle.dxf"), dxf(blocks, insert("A", 0, 0)));
    EXPECT_GT(scene->lines().size(), 1);
    EXPECT_EQ(scene->undrawnKinds().value("INSERT (nested too deep or too many)"), 1);
}

TEST_F(HostCanvasScene, ReferencedDrawingsAreDrawnFromTheirFilesOrFramedByName)
{
    write(QStringLiteral("part.dxf"), dxf({}, line(0, 0, 3, 0)));
    const QByteArray blocks =
        block("PART", {}, "sub\\..\\part.dxf") + block("GONE", {}, "elsewhere/missing.dxf");
    const auto scene = sceneOf(QStringLiteral("main.dxf"),
                               dxf(blocks, insert("PART", 5, 5) + insert("GONE", 0, 0)));
    ASSERT_EQ(scene->lines().size(), 1);
    expectNear(scene->lines()[0].p2(), QPointF(8, 5));
    ASSERT_EQ(scene->placeholders().size(), 1);
    EXPECT_EQ(scene->placeholders()[0].name, "GONE");
    EXPECT_EQ(scene->placeholders()[0].frame.topLeft(), QPointF(0, 0));
    EXPECT_TRUE(scene->extents().contains(scene->placeholders()[0].frame));
}

TEST(HostCommandLine, RecallsHistoryAndCompletesNames)
{
    CommandLineEdit line;
    line.setCompletionSource([] { return QStringList({"SAMPLELOAD", "SAMPLEUNLOAD", "open"}); });
    QSignalSpy entered(&line, &CommandLineEdit::lineEntered);
    for (const char* typed : {"open a.dxf", "Home", "Home"}) {
        QTest::keyClicks(&line, typed);
        QTest::keyClick(&line, Qt::Key_Return);
    }
    EXPECT_EQ(entered.size(), 3);
    EXPECT_EQ(line.history(), QStringList({"open a.dxf", "Home"})) << "a repeat is kept once";
    QTest::keyClicks(&line, "draft");
    const QStringList walked = [&] {
        QStringList seen;
        for (Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}) {
            QTest::keyClick(&line, key);
            seen << line.text();
        }
        return seen;
    }();
    EXPECT_EQ(walked, QStringList({"Home", "open a.dxf", "open a.dxf", "Home", "draft"}));

    line.clear();
    QTest::keyClicks(&line, "samp");
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_EQ(line.text(), "SAMPLE") << "as far as the names agree";
    QTest::keyClicks(&line, "u");
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_EQ(line.text(), "SAMPLEUNLOAD ");
}
