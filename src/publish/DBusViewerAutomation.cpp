#include "DBusViewerAutomation.h"

#include "common/HeapText.h"

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

QDBusMessage busDaemonCall(const char* method)
{
    return QDBusMessage::createMethodCall(heapText("org.freedesktop.DBus"),
                                          heapText("/org/freedesktop/DBus"),
                                          heapText("org.freedesktop.DBus"), heapText(method));
}

QVariantList automationStrings(const ViewerOpenArguments& arguments)
{
    return {QString::fromLatin1(arguments.path),
            QString::fromLatin1(arguments.viewerName),
            QString::fromLatin1(arguments.reservedText1),
            QString::fromLatin1(arguments.reservedText2),
            arguments.reservedFlag1,
            arguments.reservedFlag2};
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
    QDBusMessage open = QDBusMessage::createMethodCall(service, application,
                                                       heapText(Automation::applicationInterface),
                                                       heapText(Automation::openMethod));
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
    QDBusMessage invoke = QDBusMessage::createMethodCall(service, application,
                                                         heapText(Automation::dispatchInterface),
                                                         heapText(Automation::dispatchMethod));
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
    QDBusMessage get = QDBusMessage::createMethodCall(service, heapText(Automation::serverPath),
                                                      heapText("org.freedesktop.DBus.Properties"),
                                                      heapText("Get"));
    get.setArguments(
        {heapText(Automation::serverInterface), heapText(Automation::applicationProperty)});
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
        service, path, heapText("org.freedesktop.DBus.Introspectable"), heapText("Introspect")));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return false;
    return reply.arguments().constFirst().toString().contains(
        heapText("<interface name=\"%1\"").arg(heapText(interface)));
}

QDBusMessage DBusViewerAutomation::call(const QDBusMessage& message, int timeoutMs)
{
    return QDBusConnection::sessionBus().call(message, QDBus::Block, timeoutMs);
}
