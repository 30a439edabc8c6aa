#include "DispatchAdaptor.h"

#include "ViewerApplication.h"

#include <VcModelViewerAutomation.h>

DispatchAdaptor::DispatchAdaptor(ViewerApplication* application)
    : QDBusAbstractAdaptor(application), m_application(application)
{}

QDBusVariant DispatchAdaptor::Invoke(int dispatchId, const QVariantList& arguments)
{
    QVariantList values;
    for (const QVariant& argument : arguments)
        values << (argument.canConvert<QDBusVariant>() ? argument.value<QDBusVariant>().variant()
                                                       : argument);
    const QString call = QStringLiteral("IDispatch::Invoke(%1)").arg(dispatchId);
    if (dispatchId == VcModelViewerAutomation::openDispatchId)
        m_application->open(call, values);
    else
        m_application->reject(call, values,
                              QStringLiteral("unknown dispatch identifier %1").arg(dispatchId));
    return QDBusVariant(QVariant(QString()));
}
