// The host's window on a real X server (Xvfb, started and stopped by this program): what it
// shows of the profile, that its menus and ribbon run commands, that the canvas shows the
// drawing, and that closing it ends the session.
#include "DrawingCanvas.h"
#include "HostSession.h"
#include "HostWindow.h"
#include "HostWindowOnX.h"
#include "IsolatedHome.h"
#include "RibbonWidget.h"
#include "TestPrinters.h"
#include "XvfbServer.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <OdHostCommandStack.h>

#include <cstdio>

namespace {
// A menu entry of the profile whose macro runs a command on the command stack.
const CFxUIMenuEntry* entryRunningACommand(const CFxHostUI& ui)
{
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group == ui.GetReferenceMenuGroup())
            continue;
        for (const CFxUIPullDownMenu* menu : group->GetPullDownMenus()) {
            for (const CFxUIMenuEntry* entry : menu->GetEntries()) {
                const CFxUIMenuItem* item = entry->GetItem();
                if (!item)
                    continue;
                const QString line = HostWindow::commandLineOf(item->GetMacro().toQString());
                if (odedHostRegCmds()->lookupCmd(toOdString(line)))
                    return entry;
            }
        }
    }
    return nullptr;
}

// The bounding box of the pixels of `image` inside `area` that are not the canvas's background.
QRect drawnBox(const QImage& image, const QRect& area)
{
    QRect box;
    const QRgb background = DrawingCanvas::background().rgb();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if ((image.pixel(x, y) & 0xffffff) != (background & 0xffffff))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}
} // namespace

TEST_F(HostWindowOnX, OpensWithTheProfilesMenusAndRibbonTabs)
{
    EXPECT_EQ(QGuiApplication::platformName(), "xcb");
    QStringList menus;
    for (const CFxUIGroup* group : ui().GetMenuGroups()) {
        if (group == ui().GetReferenceMenuGroup())
            continue;
        for (const CFxUIPullDownMenu* menu : group->GetPullDownMenus())
            menus << menu->GetText().toQString();
    }
    QStringList shownMenus;
    for (const QAction* action : window()->menuBar()->actions())
        shownMenus << action->text();
    EXPECT_FALSE(menus.isEmpty());
    EXPECT_EQ(shownMenus, menus);

    QStringList tabs;
    for (const CFxUIRibbonTab* tab : RibbonWidget::shownTabs(ui()))
        tabs << tab->GetCaption().toQString();
    const auto* tabWidget = window()->findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
    ASSERT_NE(tabWidget, nullptr);
    QStringList shownTabs;
    for (int at = 0; at < tabWidget->count(); ++at)
        shownTabs << tabWidget->tabText(at);
    EXPECT_TRUE(tabs.contains(QStringLiteral("Add-Ins"))) << "the module's tab joined";
    EXPECT_EQ(shownTabs, tabs);
}

TEST_F(HostWindowOnX, AMenuEntryAndARibbonButtonRunTheirCommands)
{
    const CFxUIMenuEntry* entry = entryRunningACommand(ui());
    ASSERT_NE(entry, nullptr) << "the profile and the module give a menu entry with a command";
    auto* action = window()->menuBar()->findChild<QAction*>(entry->GetIdentifier().toQString());
    ASSERT_NE(action, nullptr);
    action->trigger();
    const QString menuLine = HostWindow::commandLineOf(entry->GetItem()->GetMacro().toQString());
    EXPECT_EQ(commandLinesRun(), QStringList({menuLine}));

    const CFxUIRibbonButton* button = nullptr;
    for (const CFxUIRibbonPanel* panel : RibbonWidget::shownTabs(ui()).front()->GetPanels()) {
        for (const CFxUIRibbonRow* row : panel->GetRows()) {
            for (const CFxUIRibbonButton* candidate : row->GetButtons()) {
                if (!button && candidate->GetCommand())
                    button = candidate;
            }
        }
    }
    ASSERT_NE(button, nullptr) << "the first tab has a button with a command";
    auto* shown = window()->findChild<QToolButton*>(button->GetIdentifier().toQString());
    ASSERT_NE(shown, nullptr);
    QTest::mouseClick(shown, Qt::LeftButton);
    EXPECT_EQ(commandLinesRun(),
              QStringList({menuLine, HostWindow::commandLineOf(
                                         button->GetCommand()->GetMacro().toQString())}));
}

TEST_F(HostWindowOnX, TheCanvasShowsTheDrawingFittedToIt)
{
    // A frame 200 by 100 and a short line near its upper left corner.
    const QString path = m_home.path() + QStringLiteral("/frame.dxf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "0\nSECTION\n2\nENTITIES\n"
        "0\nLWPOLYLINE\n70\n1\n10\n0\n20\n0\n10\n200\n20\n0\n10\n200\n20\n100\n10\n0\n20\n100\n"
        "0\nLINE\n10\n20\n20\n80\n11\n60\n21\n80\n0\nENDSEC\n0\nEOF\n");
    file.close();
    run(QStringLiteral("open frame.dxf"));
    DrawingCanvas* canvas = window()->canvas();
    const QRect area(canvas->mapTo(window(), QPoint()), canvas->size());
    // The picture as the X server holds it.
    QImage image;
    QRect box;
    for (int attempt = 0; attempt < 50 && box.isEmpty(); ++attempt) {
        QTest::qWait(100);
        image = window()->screen()->grabWindow(window()->winId()).toImage();
        box = drawnBox(image, area);
    }
    const double scale = std::min(area.width() * (1 - 2 * DrawingCanvas::kMargin) / 200,
                                  area.height() * (1 - 2 * DrawingCanvas::kMargin) / 100);
    const QPointF center(area.left() + area.width() / 2.0, area.top() + area.height() / 2.0);
    const QRectF expected(center - QPointF(100 * scale, 50 * scale), QSizeF(200, 100) * scale);
    EXPECT_NEAR(box.left(), expected.left(), 2);
    EXPECT_NEAR(box.right(), expected.right(), 2);
    EXPECT_NEAR(box.top(), expected.top(), 2);
    EXPECT_NEAR(box.bottom(), expected.bottom(), 2);
    // Up in the drawing is up on the screen: the line is near the top, nothing mirrors it.
    const auto drawnNear = [&](double x, double y) {
        const QPoint at(qRound(expected.left() + x * scale), qRound(expected.bottom() - y * scale));
        return !drawnBox(image, QRect(at - QPoint(1, 1), QSize(3, 3))).isEmpty();
    };
    EXPECT_TRUE(drawnNear(40, 80));
    EXPECT_FALSE(drawnNear(40, 20));
}

// The companions' views wait for the window to show and are then placed in the order they were
// added: the one added last (the task pane) is the tab in front, as when each is added with the
// window on screen. The window shows at its creation when it is the command line, and only for
// a picture when a script runs.
namespace {
QStringList companionViewsInFront(const HostWindow& window)
{
    QStringList companions;
    QStringList inFront;
    for (QDockWidget* dock : window.findChildren<QDockWidget*>()) {
        if (!dock->property("quillonCompanion").toBool())
            continue;
        companions << dock->windowTitle();
        if (dock->isVisible() && !dock->visibleRegion().isEmpty())
            inFront << dock->windowTitle();
    }
    EXPECT_EQ(companions.size(), 3) << companions.join(QStringLiteral(", ")).toStdString();
    return inFront;
}
} // namespace

TEST_F(HostWindowOnX, TheCompanionViewAddedLastIsTheOneInFront)
{
    QTest::qWait(50);
    EXPECT_EQ(companionViewsInFront(*window()), QStringList{QStringLiteral("Task Pane")});
}

class HostScriptOnX : public HostWindowOnX
{
protected:
    bool windowIsTheCommandLine() const override { return false; }
};

TEST_F(HostScriptOnX, TheCompanionViewAddedLastIsTheOneInFrontOfAPicture)
{
    run(QStringLiteral("screenshot window.png"));
    QTest::qWait(50);
    EXPECT_EQ(companionViewsInFront(*window()), QStringList{QStringLiteral("Task Pane")});
}

TEST_F(HostWindowOnX, ClosingTheWindowEndsTheSession)
{
    QPointer<HostWindow> shown = window();
    QTimer::singleShot(0, shown, [shown] { shown->close(); });
    QApplication::exec();
    EXPECT_TRUE(m_windowGone);
    EXPECT_EQ(m_session->mainFrame(), nullptr);
    EXPECT_EQ(m_events.events().count(QStringLiteral("mainframe-destroyed")), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull()) << "the window itself is gone";
    m_session->shutdown();
    EXPECT_TRUE(m_events.events()
                    .values(QStringLiteral("module-unloaded"), QStringLiteral("module"))
                    .contains(QStringLiteral("ExtCommands")));
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    XvfbServer server;
    if (server.display().isEmpty()) {
        std::fprintf(stderr, "cannot start an X server: %s\n", qUtf8Printable(server.error()));
        return 1;
    }
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("WAYLAND_DISPLAY");
    // Nothing here reaches the user's session bus.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    IsolatedHome home;
    // A web page that a command opens goes nowhere.
    const QString tools = home.path() + QStringLiteral("/bin");
    QDir().mkpath(tools);
    QFile opener(tools + QStringLiteral("/xdg-open"));
    if (!opener.open(QIODevice::WriteOnly) || opener.write("#!/bin/sh\nexit 0\n") < 0)
        return 1;
    opener.close();
    opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(tools) + ':' + qgetenv("PATH"));
    qputenv("BROWSER", "true");
    int result = 0;
    {
        QApplication application(argc, argv);
        result = RUN_ALL_TESTS();
    }
    return result;
}
