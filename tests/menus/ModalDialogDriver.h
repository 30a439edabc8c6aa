#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

// Plays the user of the modal dialogs that the code under test shows with exec(): while it
// lives, each dialog that comes up as the active modal widget is handed once to an action,
// which clicks or types in it. A dialog still open a few seconds after its action is closed
// and reported as a test failure, so that a dialog that ignores its buttons fails the test
// instead of hanging it.
class ModalDialogDriver
{
public:
    using Action = std::function<void(QWidget* dialog)>;

    explicit ModalDialogDriver(Action action);

    // How many dialogs were shown while the driver was watching.
    int dialogsShown() const { return m_shown; }

private:
    void poll();
    void giveUpOn(QWidget* dialog);

    Action m_action;
    QTimer m_timer;
    QPointer<QWidget> m_current;
    QElapsedTimer m_sinceAction;
    int m_shown = 0;
};
