#include "RegistryStandIn.h"

#include <QFile>
#include <QStandardPaths>

namespace {
QStringList keyParts(const QString& keyPath)
{
    QString path = keyPath;
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return path.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
}
} // namespace

std::unique_ptr<QSettings> RegistryStandIn::openKey(const QString& keyPath)
{
    auto settings = std::make_unique<QSettings>(file(), QSettings::IniFormat);
    for (const QString& part : keyParts(keyPath))
        settings->beginGroup(existingSpelling(settings->childGroups(), part));
    return settings;
}

QString RegistryStandIn::file()
{
    const QByteArray chosen = qgetenv(fileVariable);
    return chosen.isEmpty() ? defaultFile() : QFile::decodeName(chosen);
}

void RegistryStandIn::useFile(const QString& path)
{
    if (path.isEmpty())
        qunsetenv(fileVariable);
    else
        qputenv(fileVariable, QFile::encodeName(path));
}

QString RegistryStandIn::defaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/Corvane/registry.ini");
}

QString RegistryStandIn::group(const QString& keyPath)
{
    return keyParts(keyPath).join(QLatin1Char('/'));
}

QString RegistryStandIn::existingSpelling(const QStringList& groups, const QString& part)
{
    for (const QString& group : groups) {
        if (group.compare(part, Qt::CaseInsensitive) == 0)
            return group;
    }
    return part;
}
