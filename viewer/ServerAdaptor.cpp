#include "ServerAdaptor.h"

#include <VcModelViewerAutomation.h>

ServerAdaptor::ServerAdaptor(QObject* server) : QDBusAbstractAdaptor(server) {}

QDBusObjectPath ServerAdaptor::application() const
{
    return QDBusObjectPath(QString::fromLatin1(VcModelViewerAutomation::applicationPath));
}
