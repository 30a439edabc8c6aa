#include "CompanionDock.h"

#include <QMainWindow>
#include <QVariant>

#include <CFxSystemServices.h>

namespace {
// Docks of companions carry this property, so that a new one finds the others to tab with.
const char kCompanionProperty[] = "quillonCompanion";
// Wide enough for the tabs of four companions to keep their titles readable.
constexpr int kMinimumWidth = 340;
} // namespace

CompanionDock::CompanionDock(const char* objectName) : m_objectName(QString::fromLatin1(objectName))
{}

QMainWindow* CompanionDock::mainWindow()
{
    return qobject_cast<QMainWindow*>(GetFxSystemServices()->GetMainFrame());
}

QDockWidget* CompanionDock::dock() const
{
    QMainWindow* window = mainWindow();
    return window && m_dock && m_dock->parentWidget() == window ? m_dock.data() : nullptr;
}

bool CompanionDock::add(const QString& title, ContentFactory makeContent)
{
    QMainWindow* window = mainWindow();
    if (!window)
        return false;
    if (!dock()) {
        auto* created = new QDockWidget(title, window);
        created->setObjectName(m_objectName);
        created->setProperty(kCompanionProperty, true);
        created->setMinimumWidth(kMinimumWidth);
        giveContent(window, created, makeContent);
        placeBesideOtherCompanions(window, created);
        m_dock = created;
    }
    return show();
}

void CompanionDock::giveContent(QMainWindow* window, QDockWidget* dock, ContentFactory makeContent)
{
    if (window->isVisible()) {
        dock->setWidget(makeContent());
        return;
    }
    // A window that is not on screen (a script's, or one still being set up) costs no
    // companion its widgets: the view is built when the dock first shows.
    QObject::connect(dock, &QDockWidget::visibilityChanged, dock, [dock, makeContent](bool shown) {
        if (shown && !dock->widget())
            dock->setWidget(makeContent());
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
    QDockWidget* shown = dock();
    if (!shown)
        return false;
    shown->show();
    shown->raise();
    return true;
}

bool CompanionDock::remove()
{
    if (!m_dock)
        return false;
    delete m_dock.data();
    return true;
}
