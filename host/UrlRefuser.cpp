#include "UrlRefuser.h"

#include <QUrl>
#include <QtCore/private/qmetaobjectbuilder_p.h>

#include <OdEventLog.h>

namespace {
constexpr char kMethod[] = "refuseUrl";
} // namespace

const char* UrlRefuser::method()
{
    return kMethod;
}

const QMetaObject& UrlRefuser::refusingMetaObject()
{
    // Made once and kept for the process, like a meta-object that moc writes. It has no static
    // call function, which is what sends Qt's call through qt_metacall.
    static const QMetaObject* const meta = [] {
        QMetaObjectBuilder builder;
        builder.setClassName("UrlRefuser");
        builder.setSuperClass(&QObject::staticMetaObject);
        builder.addSlot(QByteArray(kMethod) + "(QUrl)");
        return builder.toMetaObject();
    }();
    return *meta;
}

const QMetaObject* UrlRefuser::metaObject() const
{
    return &refusingMetaObject();
}

int UrlRefuser::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    // QObject's own methods come first; what is left counts from this class's one method.
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0)
        return id;
    if (call != QMetaObject::InvokeMetaMethod || id != 0)
        return id - 1;
    const QUrl& url = *static_cast<const QUrl*>(arguments[1]);
    OdEventLog::report(QStringLiteral("url-refused"), {{QStringLiteral("url"), url.toString()}});
    // Not below zero: Qt takes the call as not carried out, and openUrl answers false.
    return 0;
}
