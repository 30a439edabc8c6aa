#pragma once

#include <QObject>
#include <QString>

// One version's automation server on the session bus: the server object, the viewer
// application with its two interfaces, and the bus name that D-Bus activation asked for.
class ViewerService : public QObject
{
    Q_OBJECT

public:
    explicit ViewerService(int version);

    // Registers the objects and takes the bus name; throws ViewerError when it cannot. The
    // application quits when the bus goes away.
    void start();

private:
    QString m_identifier;
    QObject m_server;
};
