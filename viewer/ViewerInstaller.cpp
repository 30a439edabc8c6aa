#include "ViewerInstaller.h"

#include "ViewerError.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

#include <RegistryStandIn.h>
#include <VcModelViewerAutomation.h>

#include <utility>

namespace {
QString identifier(int version)
{
    return VcModelViewerAutomation::serverIdentifier(version);
}

// A word of a service file's Exec line, quoted the way D-Bus splits it.
QString execWord(const QString& word)
{
    if (!word.contains(QLatin1Char(' ')) && !word.contains(QLatin1Char('\'')))
        return word;
    QString quoted = word;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}
} // namespace

ViewerInstaller::ViewerInstaller(QString program, const ViewerOptions& options)
    : m_program(std::move(program)), m_options(options)
{}

void ViewerInstaller::install() const
{
    if (!QDir().mkpath(m_options.serviceFolder))
        throw ViewerError(
            QStringLiteral("cannot create the folder %1").arg(m_options.serviceFolder));
    for (int version : m_options.versions)
        writeServiceFile(version);
    writeCurrentVersion();
}

QString ViewerInstaller::serviceFile(int version) const
{
    return QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2 --serve %3\n")
        .arg(VcModelViewerAutomation::busName(identifier(version)), execWord(m_program))
        .arg(version);
}

void ViewerInstaller::writeServiceFile(int version) const
{
    const QString path = QDir(m_options.serviceFolder)
                             .filePath(VcModelViewerAutomation::busName(identifier(version)) +
                                       QStringLiteral(".service"));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(serviceFile(version).toUtf8()) < 0 ||
        !file.commit())
        throw ViewerError(QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
}

void ViewerInstaller::writeCurrentVersion() const
{
    const QString path = m_options.registryFile.isEmpty()
                             ? RegistryStandIn::file()
                             : QFileInfo(m_options.registryFile).absoluteFilePath();
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        throw ViewerError(QStringLiteral("cannot create the folder of %1").arg(path));
    QSettings registry(path, QSettings::IniFormat);
    registry.setValue(RegistryStandIn::group(
                          QStringLiteral("HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer")) +
                          QStringLiteral("/Default"),
                      m_options.currentVersion);
    registry.sync();
    if (registry.status() != QSettings::NoError)
        throw ViewerError(QStringLiteral("cannot write the registry stand-in %1").arg(path));
}
