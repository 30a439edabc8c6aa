#include "ViewerApplication.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <OdDbDxfDatabase.h>
#include <OdError.h>
#include <VcModelViewerAutomation.h>

#include <utility>

namespace {
const QString kOpened = QStringLiteral("opened");

bool hasOpenTypes(const QVariantList& arguments)
{
    if (arguments.size() != 6)
        return false;
    for (int i = 0; i < 6; ++i) {
        const int wanted = i < 4 ? QMetaType::QString : QMetaType::Bool;
        if (arguments[i].userType() != wanted)
            return false;
    }
    return true;
}
} // namespace

ViewerApplication::ViewerApplication(QString identifier, QObject* parent)
    : QObject(parent), m_identifier(std::move(identifier))
{}

void ViewerApplication::open(const QString& call, const QVariantList& arguments)
{
    const QString result = check(arguments);
    announce(call, arguments, result);
    if (result != kOpened && calledFromDBus())
        sendErrorReply(QStringLiteral("com.corvane.VcModelViewer.Error.CannotOpen"), result);
}

void ViewerApplication::reject(const QString& call, const QVariantList& arguments,
                               const QString& reason)
{
    announce(call, arguments, reason);
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, reason);
}

QString ViewerApplication::check(const QVariantList& arguments)
{
    if (!hasOpenTypes(arguments))
        return QStringLiteral("wrong arguments: the open method takes four texts and two flags");
    const QString path = arguments[0].toString();
    if (!QFileInfo(path).isFile())
        return QStringLiteral("no such file: %1").arg(path);
    try {
        OdDbDxfDatabase::readFile(toOdString(path));
    } catch (const OdError& error) {
        return QString::fromUtf8(error.what());
    }
    return kOpened;
}

void ViewerApplication::announce(const QString& call, const QVariantList& arguments,
                                 const QString& result)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(QString::fromLatin1(VcModelViewerAutomation::applicationPath),
                                   QString::fromLatin1(VcModelViewerAutomation::eventsInterface),
                                   QString::fromLatin1(VcModelViewerAutomation::calledSignal));
    const QByteArray json =
        QJsonDocument(QJsonArray::fromVariantList(arguments)).toJson(QJsonDocument::Compact);
    signal << m_identifier << call << QString::fromUtf8(json) << result;
    QDBusConnection::sessionBus().send(signal);
}
