#include "CurrentVersion.h"

#include <CFxSystemServices.h>

QString currentVersionString()
{
    int first = 0, second = 0, third = 0, fourth = 0;
    GetFxSystemServices()->GetProductVersion(first, second, third, fourth);
    return QString::number(first) + QLatin1Char('.') + QString::number(second) + QLatin1Char('.') +
           QString::number(fourth);
}
