#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// What quillon-host was asked to do, from its command line.
struct HostOptions
{
    QStringList modules{QStringLiteral("ExtCommands")};
    QStringList modulePath;
    QString companionPath;
    int languageId = 2;
    QString locale;
    // The UI profile that the host builds its user interface from (default: the built-in one).
    QString uiProfile;
    // The file that stands in for the system registry (default: in the user's configuration).
    QString registryFile;
    // The version that the host reports to modules (release, service release, service pack,
    // build): its own unless --product-version says otherwise.
    int productVersion[4] = {2026, 0, 1, 4120};
    // The desktop refuses every web address that is handed to it.
    bool refuseUrls = false;
    bool json = false;
    // Play the demo session even when a display would allow the window.
    bool demo = false;
    // The script: a file, or text given with -c. Neither: the window, or the demo session.
    QString scriptFile;
    std::optional<QString> scriptText;

    // Parses the arguments (without the program name). Throws HostError for bad ones; sets
    // `helpText` and returns false for --help / --version.
    static HostOptions parse(const QStringList& arguments, QString& helpText, bool& exitEarly);
};
