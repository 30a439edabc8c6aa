#pragma once

#include "ViewerAutomation.h"

class QDBusMessage;

// The viewer's automation servers on the session bus. Creating a server is starting its
// service by bus activation, which fails when no service file names it; its application is
// the object path that the server object's property GetVcModelViewApp holds.
class DBusViewerAutomation : public ViewerAutomation
{
public:
    bool isCreatable(const QString& identifier) override;
    bool openThroughInterface(const QString& identifier,
                              const ViewerOpenArguments& arguments) override;
    bool openThroughDispatch(const QString& identifier,
                             const ViewerOpenArguments& arguments) override;

private:
    static bool start(const QString& service);
    // The application's object path; empty when the server cannot be created or has none.
    static QString applicationPath(const QString& service);
    static bool hasInterface(const QString& service, const QString& path, const char* interface);
    // Sends `message` and waits for its reply, at most kCallTimeoutMs unless told otherwise.
    // Publishing runs on the UI thread, so no call waits for D-Bus's default 25 s; a viewer
    // that works answers at once, and a call that runs out of time fails as a call to a
    // missing server does.
    static QDBusMessage call(const QDBusMessage& message, int timeoutMs = kCallTimeoutMs);

    static constexpr int kCallTimeoutMs = 3000;
};
