#include "ViewerService.h"

#include "ApplicationAdaptor.h"
#include "DispatchAdaptor.h"
#include "ServerAdaptor.h"
#include "ViewerApplication.h"
#include "ViewerError.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>

#include <VcModelViewerAutomation.h>

namespace Automation = VcModelViewerAutomation;

ViewerService::ViewerService(int version) : m_identifier(Automation::serverIdentifier(version))
{
    new ServerAdaptor(&m_server);
}

void ViewerService::start()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        throw ViewerError(QStringLiteral("no session bus: %1").arg(bus.lastError().message()));
    // A server started by the bus does not end with it on its own.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                QCoreApplication::instance(), SLOT(quit()));
    auto* application = new ViewerApplication(m_identifier, this);
    new ApplicationAdaptor(application);
    new DispatchAdaptor(application);
    if (!bus.registerObject(QString::fromLatin1(Automation::serverPath), &m_server) ||
        !bus.registerObject(QString::fromLatin1(Automation::applicationPath), application))
        throw ViewerError(QStringLiteral("cannot register the viewer's objects on the bus"));
    const QString name = Automation::busName(m_identifier);
    if (!bus.registerService(name))
        throw ViewerError(
            QStringLiteral("cannot take the bus name %1: %2").arg(name, bus.lastError().message()));
}
