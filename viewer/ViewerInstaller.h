#pragma once

#include "ViewerOptions.h"

#include <QString>

// Installs the viewer the way its installer would: a D-Bus service file per version, which
// makes the version's automation server activatable on the session bus, and the registry's
// current-version value. Files already there are replaced; other registry values stay.
class ViewerInstaller
{
public:
    ViewerInstaller(QString program, const ViewerOptions& options);

    // Throws ViewerError when a file cannot be written.
    void install() const;

    // The service file's text for `version`.
    QString serviceFile(int version) const;

private:
    void writeServiceFile(int version) const;
    void writeCurrentVersion() const;

    QString m_program;
    ViewerOptions m_options;
};
