#include "ViewerCallListener.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>

#include <OdEventLog.h>
#include <VcModelViewerAutomation.h>

void ViewerCallListener::listen()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    m_listening = bus.connect(QString(), QString(),
                              QString::fromLatin1(VcModelViewerAutomation::eventsInterface),
                              QString::fromLatin1(VcModelViewerAutomation::calledSignal), this,
                              SLOT(called(QString, QString, QString, QString)));
}

void ViewerCallListener::flush(int timeoutMs)
{
    QCoreApplication::processEvents();
    if (!m_listening)
        return;
    const QDBusMessage ping = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    QDBusPendingCallWatcher answer(QDBusConnection::sessionBus().asyncCall(ping, timeoutMs));
    QEventLoop loop;
    connect(&answer, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    if (!answer.isFinished())
        loop.exec();
    QCoreApplication::processEvents();
}

void ViewerCallListener::called(const QString& server, const QString& call,
                                const QString& arguments, const QString& result)
{
    OdEventLog::report(
        QStringLiteral("viewer-call"),
        {{QStringLiteral("server"), server},
         {QStringLiteral("call"), call},
         {QStringLiteral("args"), QJsonDocument::fromJson(arguments.toUtf8()).array()},
         {QStringLiteral("result"), result}});
}
