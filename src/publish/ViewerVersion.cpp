#include "ViewerVersion.h"

int viewerVersion(const QString& currentVersionValue)
{
    const int dot = currentVersionValue.lastIndexOf(QLatin1Char('.'));
    if (dot < 0)
        return 0;
    bool ok = false;
    const int version = currentVersionValue.mid(dot + 1).toInt(&ok, 10);
    return ok ? version : 0;
}
