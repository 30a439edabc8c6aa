#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// What vcst-viewer was asked to do, from its command line: install itself as the automation
// server of some versions, or serve one version on the session bus.
struct ViewerOptions
{
    enum class Mode
    {
        Install,
        Serve
    };

    Mode mode = Mode::Serve;
    // Install: where the D-Bus service files go, the versions, the current-version value (by
    // default the newest version's identifier) and the registry stand-in (by default the
    // user's own).
    QString serviceFolder;
    QList<int> versions;
    QString currentVersion;
    QString registryFile;
    // Serve: the version.
    int version = 0;

    // Parses the arguments (without the program name). Throws ViewerError for bad ones; sets
    // `helpText` and `exitEarly` for --help.
    static ViewerOptions parse(const QStringList& arguments, QString& helpText, bool& exitEarly);
};
