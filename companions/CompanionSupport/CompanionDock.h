#pragma once

#include <QDockWidget>
#include <QPointer>
#include <QString>

class QMainWindow;

// A companion's dock in the host's main window (GetFxSystemServices()->GetMainFrame()). The
// dock belongs to the window: it goes when the window goes, and a new window gets a new dock.
// Companions dock on the right, each one a tab of the same area.
class CompanionDock
{
public:
    using ContentFactory = QWidget* (*)();

    // `objectName` names the dock widget, so that the host and tests can find it.
    explicit CompanionDock(const char* objectName);

    // The host's main window, or null while there is none (or it is not a QMainWindow).
    static QMainWindow* mainWindow();

    // Puts the dock, with the content that `makeContent` builds, into the main window and
    // brings it to the front; a dock that already stands in this window is kept. The content is
    // built at once when the window is on screen, otherwise when the dock first shows (until
    // then dock()->widget() is null). False without a main window.
    bool add(const QString& title, ContentFactory makeContent);
    // Shows the dock and brings it to the front; false when it does not stand in the window.
    bool show();
    // Deletes the dock at once, not later: the code behind its content may be about to be
    // unloaded. False when there was none.
    bool remove();

    QDockWidget* dock() const;

private:
    static void giveContent(QMainWindow* window, QDockWidget* dock, ContentFactory makeContent);
    static void placeBesideOtherCompanions(QMainWindow* window, QDockWidget* dock);

    QString m_objectName;
    QPointer<QDockWidget> m_dock;
};
