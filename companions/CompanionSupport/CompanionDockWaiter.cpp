#include "CompanionDockWaiter.h"

#include "CompanionDock.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QVariant>

#include <algorithm>

namespace {
const char kWaiterName[] = "quillonCompanionDockWaiter";
// On the window: how many docks were held back, which numbers them in the order asked for.
const char kCountProperty[] = "quillonCompanionDocksHeld";
// On the window: the object name of the dock to bring to the front when it shows.
const char kFrontProperty[] = "quillonCompanionDockInFront";
// On each waiter: its number.
const char kOrderProperty[] = "quillonCompanionDockOrder";

QList<QObject*> waitersOf(QMainWindow* window)
{
    QList<QObject*> waiters;
    for (QObject* child : window->children()) {
        if (child->objectName() == QLatin1String(kWaiterName))
            waiters << child;
    }
    std::sort(waiters.begin(), waiters.end(), [](const QObject* a, const QObject* b) {
        return a->property(kOrderProperty).toInt() < b->property(kOrderProperty).toInt();
    });
    return waiters;
}

void invoke(const QList<QObject*>& waiters, const char* method)
{
    for (QObject* waiter : waiters)
        QMetaObject::invokeMethod(waiter, method, Qt::DirectConnection);
}
} // namespace

CompanionDockWaiter::CompanionDockWaiter(QMainWindow* window, CompanionDock* dock)
    : QObject(window), m_window(window), m_dock(dock)
{
    setObjectName(QString::fromLatin1(kWaiterName));
    const int order = window->property(kCountProperty).toInt() + 1;
    window->setProperty(kCountProperty, order);
    setProperty(kOrderProperty, order);
    window->installEventFilter(this);
}

void CompanionDockWaiter::bringToFront()
{
    m_window->setProperty(kFrontProperty, m_dock->m_objectName);
}

bool CompanionDockWaiter::eventFilter(QObject* watched, QEvent* event)
{
    // The first waiter to see the window show places them all, in the order they were asked for.
    if (watched == m_window && event->type() == QEvent::Show)
        placeAllWaiting(m_window);
    return QObject::eventFilter(watched, event);
}

void CompanionDockWaiter::placeAllWaiting(QMainWindow* window)
{
    const QList<QObject*> waiters = waitersOf(window);
    // As if each had been added with the window on screen: placed, shown and raised in turn,
    // then the one asked for last raised again. A window shown only to be drawn lays its dock
    // tabs out once more after this, which brings the first tab forward: the front one is
    // raised once more when that is done.
    invoke(waiters, "place");
    const QString front = window->property(kFrontProperty).toString();
    window->setProperty(kFrontProperty, QVariant());
    if (QDockWidget* dock = window->findChild<QDockWidget*>(front)) {
        dock->show();
        dock->raise();
        QMetaObject::invokeMethod(dock, "raise", Qt::QueuedConnection);
    }
    // Laid out now, the docks behind the front tab stand outside the window: only the docks
    // on screen build their views at once.
    if (window->layout())
        window->layout()->activate();
    invoke(waiters, "giveContent");
}

void CompanionDockWaiter::place()
{
    setObjectName(QString());
    m_window->removeEventFilter(this);
    m_dock->build(m_window);
    m_dock->show();
}

void CompanionDockWaiter::giveContent()
{
    m_dock->giveContent();
    deleteLater();
}
