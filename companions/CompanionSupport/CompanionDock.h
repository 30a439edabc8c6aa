#pragma once

#include <QDockWidget>
#include <QPointer>
#include <QString>

class CompanionDockWaiter;
class QMainWindow;

// A companion's dock in the host's main window (GetFxHostServices()->GetMainFrame()). The
// dock belongs to the window: it goes when the window goes, and a new window gets a new dock.
// Companions dock on the right, each one a tab of the same area.
class CompanionDock
{
public:
    using ContentFactory = QWidget* (*)();

    // `objectName` names the dock widget, so that the host and tests can find it.
    explicit CompanionDock(const char* objectName);
    // A dock still waiting for its window is forgotten: the code behind it is going.
    ~CompanionDock();
    CompanionDock(const CompanionDock&) = delete;
    CompanionDock& operator=(const CompanionDock&) = delete;

    // The host's main window, or null while there is none (or it is not a QMainWindow).
    static QMainWindow* mainWindow();

    // Puts the dock, with the content that `makeContent` builds, into the main window and
    // brings it to the front; a dock already added to this window is kept. With the window on
    // screen the dock and its content are built at once. Otherwise the dock waits for the
    // window to show, and its content for the dock to show: until then dock() is null, or its
    // widget() is. False without a main window.
    bool add(const QString& title, ContentFactory makeContent);
    // Shows the dock and brings it to the front; false when it was not added to this window.
    bool show();
    // Deletes the dock at once, not later: the code behind its content may be about to be
    // unloaded. False when there was none.
    bool remove();

    // The dock widget standing in the main window; null while it waits for the window to show.
    QDockWidget* dock() const;
    // Added to the current main window: standing in it, or waiting for it to show.
    bool isAdded() const;

private:
    friend class CompanionDockWaiter;

    CompanionDockWaiter* waiter() const;
    void build(QMainWindow* window);
    // The view at once when the dock is on screen, otherwise when it first shows.
    void giveContent();
    static void placeBesideOtherCompanions(QMainWindow* window, QDockWidget* dock);

    QString m_objectName;
    QString m_title;
    ContentFactory m_makeContent = nullptr;
    QPointer<QDockWidget> m_dock;
    QPointer<CompanionDockWaiter> m_waiter;
};
