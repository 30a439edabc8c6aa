#pragma once

#include <QString>

// Whether this run takes the crash-report companion's installation check rather than its
// reminder: on the very first run (no version recorded yet), and on the first run of a
// release whose second version component is "0". Any other run, a changed version with
// another second component included, takes the reminder. Kept: docs/lifecycle.md, row
// "Crash-report check".
bool crashReportInstallCheck(bool versionRecorded, const QString& recorded, const QString& current);
