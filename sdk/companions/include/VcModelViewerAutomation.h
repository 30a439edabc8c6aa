#pragma once

#include <QString>
#include <QStringList>

// The automation interface of the Viewcast viewer, as its type library (Windows) and its
// D-Bus service files (elsewhere) publish it.
//
// Each installed version N of the viewer registers the automation server
// "VcModelViewer.VcstViewer.N"; the default value of the registry key
// HKEY_CLASSES_ROOT\VcModelViewer.VcstViewer\CurVer names the newest one. The server object has the
// property "GetVcModelViewApp", the viewer application. The application has a dual interface: its
// own (IVcModelViewApp, whose open method is the interface's slot 10) and IDispatch (the same
// method under dispatch identifier 53).
//
// On D-Bus, a server is the session bus service whose name vcModelViewerBusName gives; it is
// started by bus activation, the way COM starts a server. The server object, the application
// object and their interfaces are named below; the open method and the dispatch take the same
// six arguments in the same order: (path, viewer name, text, text, flag, flag). Every call
// that reaches the viewer is announced with the signal Called on the events interface.
namespace VcModelViewerAutomation {
constexpr const char* identifierPrefix = "VcModelViewer.VcstViewer.";
constexpr int firstVersion = 9;
constexpr int openDispatchId = 53;
constexpr int openInterfaceSlot = 10;
// IVcModelViewApp in the type library.
constexpr const char* interfaceId = "{7A1C3E52-9B4D-4F1E-8C2A-5D3B6E0F4A91}";

constexpr const char* busNamePrefix = "com.corvane.";
constexpr const char* serverPath = "/VcModelViewer/VcstViewer";
constexpr const char* serverInterface = "com.corvane.VcModelViewer.VcstViewer";
constexpr const char* applicationProperty = "GetVcModelViewApp";
constexpr const char* applicationPath = "/VcModelViewer/Application";
constexpr const char* applicationInterface = "com.corvane.VcModelViewer.IVcModelViewApp";
constexpr const char* openMethod = "OpenDocument";
constexpr const char* dispatchInterface = "com.corvane.VcModelViewer.IDispatch";
constexpr const char* dispatchMethod = "Invoke";
constexpr const char* eventsInterface = "com.corvane.VcModelViewer.Events";
constexpr const char* calledSignal = "Called";

// The automation server of viewer version `version`: "VcModelViewer.VcstViewer." followed by
// the version in decimal. On Windows it is the COM server's ProgID.
inline QString serverIdentifier(int version)
{
    return QString::fromLatin1(identifierPrefix) + QString::number(version);
}

// The session-bus name of the automation server `identifier`: "com.corvane." followed by the
// identifier, where a part that starts with a digit (not allowed in a bus name) gets a
// leading "v" and a character other than a letter, a digit, "_" or "-" becomes "_". So
// "VcModelViewer.VcstViewer.12" is "com.corvane.VcModelViewer.VcstViewer.v12".
inline QString busName(const QString& identifier)
{
    QStringList parts = identifier.split(QLatin1Char('.'));
    for (QString& part : parts) {
        for (QChar& c : part) {
            const bool allowed = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                                 (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                                 (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
                                 c == QLatin1Char('_') || c == QLatin1Char('-');
            if (!allowed)
                c = QLatin1Char('_');
        }
        if (part.isEmpty() || part.at(0).isDigit())
            part.prepend(QLatin1Char('v'));
    }
    return QString::fromLatin1(busNamePrefix) + parts.join(QLatin1Char('.'));
}
} // namespace VcModelViewerAutomation
