#pragma once

#include <QObject>

class CompanionDock;
class QMainWindow;

// Holds a companion's dock back while the main window is not on screen. A script's window, or
// one still being set up, may never show: its docks are built when it first shows, so that a
// window nobody sees costs no dock widgets, tab bars or fonts. A child of the window (it goes
// with it) and of the dock's own library (its owner deletes it before that library goes).
//
// Each companion library carries its own copy of this class, so the waiters of one window know
// each other by object name and reach each other through the meta-object system, by name.
class CompanionDockWaiter : public QObject
{
    Q_OBJECT

public:
    CompanionDockWaiter(QMainWindow* window, CompanionDock* dock);

    // The dock asked to be shown last is the one in front when the window shows.
    void bringToFront();

    Q_INVOKABLE void place();
    Q_INVOKABLE void giveContent();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void placeAllWaiting(QMainWindow* window);

    QMainWindow* m_window;
    CompanionDock* m_dock;
};
