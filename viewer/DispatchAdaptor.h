#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusVariant>
#include <QVariantList>

class ViewerApplication;

// The viewer application's dispatch interface: a method called by its dispatch identifier,
// with its arguments in their logical order.
class DispatchAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.corvane.VcModelViewer.IDispatch")

public:
    explicit DispatchAdaptor(ViewerApplication* application);

public slots:
    QDBusVariant Invoke(int dispatchId, const QVariantList& arguments);

private:
    ViewerApplication* m_application;
};
