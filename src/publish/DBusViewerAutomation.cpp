#include "DBusViewerAutomation.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariantList>

#include <VcModelViewerAutomation.h>

namespace Automation = VcModelViewerAutomation;

namespace {
// Starting a server may start the viewer's process, which takes longer than a call.
constexpr int kStartTimeoutMs = 10000;

// Strings handed to Qt D-Bus are made on the heap: Qt may keep them after this module is gone.
QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QDBusMessage busDaemonCall(const char* method)
{
    return QDBusMessage::createMethodCall(text("org.freedesktop.DBus"),
                                          text("/org/freedesktop/DBus"),
                                          text("org.freedesktop.DBus"), text(method));
}

QVariantList automationStrings(const ViewerOpenArguments& arguments)
{
    return {QString::fromLatin1(arguments.path),
            QString::fromLatin1(arguments.viewerName),
            QString::fromLatin1(arguments.firstText),
            QString::fromLatin1(arguments.secondText),
            arguments.firstFlag,
            arguments.secondFlag};
}
} // namespace

bool DBusViewerAutomation::isCreatable(const QString& identifier)
{
    return !applicationPath(Automation::busName(identifier)).isEmpty();
}

bool DBusViewerAutomation::openThroughInterface(const QString& identifier,
                                                const ViewerOpenArguments& arguments)
{
    const QString service = Automation::busName(identifier);
    const QString application = applicationPath(service);
    if (application.isEmpty() ||
        !hasInterface(service, application, Automation::applicationInterface))
        return false;
    QDBusMessage open = QDBusMessage::createMethodCall(
        service, application, text(Automation::applicationInterface), text(Automation::openMethod));
    open.setArguments(automationStrings(arguments));
    // The method's own result is the viewer's business; as over COM, it is not looked at.
    call(open);
    return true;
}

bool DBusViewerAutomation::openThroughDispatch(const QString& identifier,
                                               const ViewerOpenArguments& arguments)
{
    const QString service = Automation::busName(identifier);
    const QString application = applicationPath(service);
    if (application.isEmpty())
        return false;
    QDBusMessage invoke =
        QDBusMessage::createMethodCall(service, application, text(Automation::dispatchInterface),
                                       text(Automation::dispatchMethod));
    QVariantList dispatchArguments;
    for (const QVariant& argument : automationStrings(arguments))
        dispatchArguments << QVariant::fromValue(QDBusVariant(argument));
    invoke.setArguments({Automation::openDispatchId, dispatchArguments});
    call(invoke);
    return true;
}

bool DBusViewerAutomation::start(const QString& service)
{
    QDBusMessage request = busDaemonCall("StartServiceByName");
    request.setArguments({service, 0u});
    return call(request, kStartTimeoutMs).type() == QDBusMessage::ReplyMessage;
}

QString DBusViewerAutomation::applicationPath(const QString& service)
{
    if (!start(service))
        return {};
    QDBusMessage get =
        QDBusMessage::createMethodCall(service, text(Automation::serverPath),
                                       text("org.freedesktop.DBus.Properties"), text("Get"));
    get.setArguments({text(Automation::serverInterface), text(Automation::applicationProperty)});
    const QDBusMessage reply = call(get);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    const QVariant value = reply.arguments().constFirst().value<QDBusVariant>().variant();
    return value.value<QDBusObjectPath>().path();
}

bool DBusViewerAutomation::hasInterface(const QString& service, const QString& path,
                                        const char* interface)
{
    const QDBusMessage reply = call(QDBusMessage::createMethodCall(
        service, path, text("org.freedesktop.DBus.Introspectable"), text("Introspect")));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return false;
    return reply.arguments().constFirst().toString().contains(
        QString::fromLatin1("<interface name=\"%1\"").arg(text(interface)));
}

QDBusMessage DBusViewerAutomation::call(const QDBusMessage& message, int timeoutMs)
{
    return QDBusConnection::sessionBus().call(message, QDBus::Block, timeoutMs);
}
