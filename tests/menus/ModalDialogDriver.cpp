#include "ModalDialogDriver.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {
constexpr int pollIntervalMs = 10;
constexpr qint64 patienceMs = 5000;
} // namespace

ModalDialogDriver::ModalDialogDriver(Action action) : m_action(std::move(action))
{
    QObject::connect(&m_timer, &QTimer::timeout, [this] { poll(); });
    m_timer.start(pollIntervalMs);
}

void ModalDialogDriver::poll()
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
        m_current = nullptr;
        return;
    }
    if (dialog == m_current) {
        if (m_sinceAction.hasExpired(patienceMs))
            giveUpOn(dialog);
        return;
    }
    m_current = dialog;
    ++m_shown;
    m_sinceAction.start();
    m_action(dialog);
    // The same dialog may be shown again at once; it is then a new showing.
    if (!m_current.isNull() && !m_current->isVisible())
        m_current = nullptr;
}

void ModalDialogDriver::giveUpOn(QWidget* dialog)
{
    ADD_FAILURE() << "dialog " << dialog->objectName().toStdString()
                  << " is still open after the user's action";
    dialog->close();
    m_current = nullptr;
}
