#include "ViewerOptions.h"

#include "ViewerError.h"

#include <QCommandLineParser>

#include <VcModelViewerAutomation.h>

#include <algorithm>

namespace {
int parseVersion(const QString& text)
{
    bool ok = false;
    const int version = text.toInt(&ok);
    if (!ok || version < VcModelViewerAutomation::firstVersion)
        throw ViewerError(QStringLiteral("'%1' is not a viewer version (a whole number from %2 up)")
                              .arg(text)
                              .arg(VcModelViewerAutomation::firstVersion));
    return version;
}

void defineOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "The reference Viewcast viewer: an automation server, one version per process, started "
        "by D-Bus activation. --install DIR writes its D-Bus service files and the registry's "
        "current version; --serve N serves version N on the session bus."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("install"),
         QStringLiteral("Install: write the D-Bus service files of the versions into DIR and "
                        "the current version into the registry stand-in."),
         QStringLiteral("DIR")},
        {QStringLiteral("version"),
         QStringLiteral("With --install: a version to install (repeatable; 9 or more)."),
         QStringLiteral("N")},
        {QStringLiteral("current"),
         QStringLiteral("With --install: the registry's current-version value (default: "
                        "VcModelViewer.VcstViewer.N for the newest version installed)."),
         QStringLiteral("VALUE")},
        {QStringLiteral("registry"),
         QStringLiteral("With --install: the registry stand-in file (default: "
                        "Corvane/registry.ini in the user's configuration folder)."),
         QStringLiteral("FILE")},
        {QStringLiteral("serve"), QStringLiteral("Serve version N on the session bus."),
         QStringLiteral("N")},
    });
}

ViewerOptions installOptions(const QCommandLineParser& parser)
{
    ViewerOptions options;
    options.mode = ViewerOptions::Mode::Install;
    options.serviceFolder = parser.value(QStringLiteral("install"));
    for (const QString& version : parser.values(QStringLiteral("version")))
        options.versions << parseVersion(version);
    if (options.versions.isEmpty())
        throw ViewerError(QStringLiteral("--install needs at least one --version N"));
    const int newest = *std::max_element(options.versions.begin(), options.versions.end());
    options.currentVersion = parser.isSet(QStringLiteral("current"))
                                 ? parser.value(QStringLiteral("current"))
                                 : VcModelViewerAutomation::serverIdentifier(newest);
    options.registryFile = parser.value(QStringLiteral("registry"));
    return options;
}

ViewerOptions serveOptions(const QCommandLineParser& parser)
{
    for (const char* installOnly : {"version", "current", "registry"}) {
        if (parser.isSet(QLatin1String(installOnly)))
            throw ViewerError(
                QStringLiteral("--%1 goes with --install").arg(QLatin1String(installOnly)));
    }
    ViewerOptions options;
    options.mode = ViewerOptions::Mode::Serve;
    options.version = parseVersion(parser.value(QStringLiteral("serve")));
    return options;
}
} // namespace

ViewerOptions ViewerOptions::parse(const QStringList& arguments, QString& helpText, bool& exitEarly)
{
    QCommandLineParser parser;
    defineOptions(parser);
    exitEarly = false;
    if (!parser.parse(QStringList{QStringLiteral("vcst-viewer")} + arguments))
        throw ViewerError(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        helpText = parser.helpText();
        exitEarly = true;
        return {};
    }
    if (!parser.positionalArguments().isEmpty())
        throw ViewerError(
            QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().first()));
    const bool install = parser.isSet(QStringLiteral("install"));
    if (install == parser.isSet(QStringLiteral("serve")))
        throw ViewerError(QStringLiteral("give either --install DIR or --serve N"));
    return install ? installOptions(parser) : serveOptions(parser);
}
