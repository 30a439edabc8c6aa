#include "CFxRegistry.h"

#include <QStandardPaths>

namespace {
QString g_standInFile;

QStringList keyParts(const QString& keyPath)
{
    QString path = keyPath;
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return path.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
}
} // namespace

std::unique_ptr<QSettings> CFxRegistry::openKey(const QString& keyPath)
{
#if defined(Q_OS_WIN)
    return std::make_unique<QSettings>(nativeKeyPath(keyPath), QSettings::NativeFormat);
#else
    auto settings = std::make_unique<QSettings>(standInFile(), QSettings::IniFormat);
    for (const QString& part : keyParts(keyPath))
        settings->beginGroup(existingSpelling(settings->childGroups(), part));
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
    return keyParts(keyPath).join(QLatin1Char('/'));
}

QString CFxRegistry::nativeKeyPath(const QString& keyPath)
{
    return keyParts(keyPath).join(QLatin1Char('\\'));
}

QString CFxRegistry::existingSpelling(const QStringList& groups, const QString& part)
{
    for (const QString& group : groups) {
        if (group.compare(part, Qt::CaseInsensitive) == 0)
            return group;
    }
    return part;
}
