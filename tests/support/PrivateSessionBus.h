#pragma once

#include <QString>
#include <QStringList>

// A session bus of a test's own: dbus-run-session with a configuration that is the system's
// session configuration plus a service folder of the test, so that the services the test
// installs there (and only those, besides the ones in the test's own XDG folders) can be
// started by bus activation.
class PrivateSessionBus
{
public:
    // Writes the configuration and makes the service folder below `folder`.
    explicit PrivateSessionBus(const QString& folder);

    QString serviceFolder() const { return m_folder + QStringLiteral("/services"); }
    QString configFile() const { return m_folder + QStringLiteral("/session.conf"); }
    // The command that runs a program (given after it) on this bus.
    QStringList launcher() const;

private:
    QString m_folder;
};
