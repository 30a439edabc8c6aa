#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>

// The automation server object: it gives out the viewer application.
class ServerAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.corvane.VcModelViewer.VcstViewer")
    Q_PROPERTY(QDBusObjectPath GetVcModelViewApp READ application)

public:
    explicit ServerAdaptor(QObject* server);

    QDBusObjectPath application() const;
};
