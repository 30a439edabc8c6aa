#pragma once

#include <QString>

// The viewer version that a registered current-version value names: the decimal number after
// its last "." ("VcModelViewer.VcstViewer.12" gives 12). 0 when the value has no "." or no
// number there.
int viewerVersion(const QString& currentVersionValue);
