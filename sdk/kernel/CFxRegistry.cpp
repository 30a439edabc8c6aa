#include "CFxRegistry.h"

#include <QStandardPaths>

namespace {
QString g_standInFile;
} // namespace

std::unique_ptr<QSettings> CFxRegistry::openKey(const QString& keyPath)
{
#if defined(Q_OS_WIN)
    return std::make_unique<QSettings>(keyPath, QSettings::NativeFormat);
#else
    auto settings = std::make_unique<QSettings>(standInFile(), QSettings::IniFormat);
    settings->beginGroup(standInGroup(keyPath));
    return settings;
#endif
}

void CFxRegistry::setStandInFile(const QString& path)
{
    g_standInFile = path;
}

QString CFxRegistry::standInFile()
{
    if (!g_standInFile.isEmpty())
        return g_standInFile;
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Corvane/registry.ini");
}

QString CFxRegistry::standInGroup(const QString& keyPath)
{
    QString group = keyPath;
    group.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (group.endsWith(QLatin1Char('/')))
        group.chop(1);
    return group;
}
