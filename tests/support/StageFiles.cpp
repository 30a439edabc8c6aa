#include "StageFiles.h"

#include <QFile>

#include <unistd.h>

bool StageFiles::linkOrCopy(const QString& source, const QString& target)
{
    return ::link(QFile::encodeName(source), QFile::encodeName(target)) == 0 ||
           QFile::copy(source, target);
}
