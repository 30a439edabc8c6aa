#include "CompanionInstallation.h"

#include "HostProcess.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <unistd.h>

#include <stdexcept>

namespace {
bool isModule(const QString& companion)
{
    return companion.endsWith(QLatin1String("Connector")) &&
           companion != QLatin1String("QuillonQnMurmurConnector");
}
} // namespace

CompanionInstallation::CompanionInstallation()
{
    QDir(m_root.path()).mkpath(QStringLiteral("modules"));
    QDir(m_root.path()).mkpath(QStringLiteral("companions"));
    place(QStringLiteral("ExtCommands.tx"), moduleFolder());
}

QStringList CompanionInstallation::allCompanions()
{
    return {QStringLiteral("QuillonQnMurmurConnector"), QStringLiteral("QuillonOmniplaneConnector"),
            QStringLiteral("QNTForgeportConnector"), QStringLiteral("TarnTaskPane")};
}

void CompanionInstallation::install(const QString& companion)
{
    if (isModule(companion))
        place(companion + QStringLiteral(".tx"), moduleFolder());
    else
        place(QStringLiteral("lib") + companion + QStringLiteral(".so"), companionFolder());
}

void CompanionInstallation::installAll()
{
    for (const QString& companion : allCompanions())
        install(companion);
}

void CompanionInstallation::place(const QString& file, const QString& folder) const
{
    const QString source = HostProcess::stageFolder() + QLatin1Char('/') + file;
    const QString target = folder + QLatin1Char('/') + file;
    if (::link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) != 0 &&
        !QFile::copy(source, target))
        throw std::runtime_error("cannot place " + source.toStdString());
}

void CompanionInstallation::setCollaborationEnabled(const QVariant& value) const
{
    QSettings registry(registryFile(), QSettings::IniFormat);
    registry.setValue(
        QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Corvane/BfxConnectors/OmniplaneCSEnable"),
        value);
}

QStringList CompanionInstallation::hostArguments() const
{
    return {QStringLiteral("--module-path"),    moduleFolder(),
            QStringLiteral("--companion-path"), companionFolder(),
            QStringLiteral("--registry"),       registryFile()};
}

QString CompanionInstallation::moduleFolder() const
{
    return m_root.filePath(QStringLiteral("modules"));
}

QString CompanionInstallation::companionFolder() const
{
    return m_root.filePath(QStringLiteral("companions"));
}

QString CompanionInstallation::registryFile() const
{
    return m_root.filePath(QStringLiteral("registry.ini"));
}
