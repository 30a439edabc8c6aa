#include "CompanionDock.h"

#include "CompanionDockWaiter.h"

#include <QMainWindow>
#include <QVariant>

#include <CFxHostServices.h>

namespace {
// Docks of companions carry this property, so that a new one finds the others to tab with.
const char kCompanionProperty[] = "quillonCompanion";
// Wide enough for the tabs of four companions to keep their titles readable.
constexpr int kMinimumWidth = 340;

bool onScreen(const QDockWidget* dock)
{
    // Docks behind the front tab of their area are laid out outside the window.
    const QRect geometry = dock->geometry();
    return dock->isVisible() && geometry.right() >= 0 && geometry.bottom() >= 0;
}
} // namespace

CompanionDock::CompanionDock(const char* objectName) : m_objectName(QString::fromLatin1(objectName))
{}

CompanionDock::~CompanionDock()
{
    delete m_waiter.data();
}

QMainWindow* CompanionDock::mainWindow()
{
    return qobject_cast<QMainWindow*>(GetFxHostServices()->GetMainFrame());
}

QDockWidget* CompanionDock::dock() const
{
    QMainWindow* window = mainWindow();
    return window && m_dock && m_dock->parentWidget() == window ? m_dock.data() : nullptr;
}

CompanionDockWaiter* CompanionDock::waiter() const
{
    QMainWindow* window = mainWindow();
    return window && m_waiter && m_waiter->parent() == window && !dock() ? m_waiter.data()
                                                                         : nullptr;
}

bool CompanionDock::isAdded() const
{
    return dock() || waiter();
}

bool CompanionDock::add(const QString& title, ContentFactory makeContent)
{
    QMainWindow* window = mainWindow();
    if (!window)
        return false;
    if (!isAdded()) {
        m_title = title;
        m_makeContent = makeContent;
        delete m_waiter.data();
        if (window->isVisible()) {
            build(window);
            m_dock->setWidget(m_makeContent());
        } else {
            m_waiter = new CompanionDockWaiter(window, this);
        }
    }
    return show();
}

void CompanionDock::build(QMainWindow* window)
{
    auto* created = new QDockWidget(m_title, window);
    created->setObjectName(m_objectName);
    created->setProperty(kCompanionProperty, true);
    created->setMinimumWidth(kMinimumWidth);
    placeBesideOtherCompanions(window, created);
    m_dock = created;
}

void CompanionDock::giveContent()
{
    QDockWidget* placed = dock();
    if (!placed || placed->widget())
        return;
    if (onScreen(placed)) {
        placed->setWidget(m_makeContent());
        return;
    }
    QObject::connect(placed, &QDockWidget::visibilityChanged, placed,
                     [placed, makeContent = m_makeContent](bool shown) {
                         if (shown && !placed->widget())
                             placed->setWidget(makeContent());
                     });
}

void CompanionDock::placeBesideOtherCompanions(QMainWindow* window, QDockWidget* dock)
{
    window->addDockWidget(Qt::RightDockWidgetArea, dock);
    for (QDockWidget* other : window->findChildren<QDockWidget*>()) {
        if (other != dock && other->property(kCompanionProperty).toBool() &&
            window->dockWidgetArea(other) == Qt::RightDockWidgetArea) {
            window->tabifyDockWidget(other, dock);
            return;
        }
    }
}

bool CompanionDock::show()
{
    if (CompanionDockWaiter* waiting = waiter()) {
        waiting->bringToFront();
        return true;
    }
    QDockWidget* shown = dock();
    if (!shown)
        return false;
    shown->show();
    shown->raise();
    return true;
}

bool CompanionDock::remove()
{
    if (CompanionDockWaiter* waiting = waiter()) {
        delete waiting;
        return true;
    }
    if (!m_dock)
        return false;
    delete m_dock.data();
    return true;
}
