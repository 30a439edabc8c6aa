#include "ProgramFolderCopy.h"

#include "HostProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <stdexcept>

namespace {
void require(bool done, const QString& what)
{
    if (!done)
        throw std::runtime_error(what.toStdString());
}
} // namespace

ProgramFolderCopy::ProgramFolderCopy()
{
    const QDir stage(HostProcess::stageFolder());
    // A hard link where possible: the host's program is large under the sanitizers. A symbolic
    // link would not do: the program's folder is where the link points.
    const QByteArray source = QFile::encodeName(HostProcess::program());
    if (::link(source.constData(), QFile::encodeName(program()).constData()) != 0)
        require(QFile::copy(HostProcess::program(), program()), "cannot copy " + program());
    for (const QFileInfo& library : stage.entryInfoList({QStringLiteral("*.so")}, QDir::Files))
        require(QFile::link(library.absoluteFilePath(), m_folder.filePath(library.fileName())),
                "cannot link " + library.fileName());
}

QString ProgramFolderCopy::program() const
{
    return m_folder.filePath(QStringLiteral("quillon-host"));
}

QString ProgramFolderCopy::messages() const
{
    return m_folder.filePath(QStringLiteral("messages"));
}

void ProgramFolderCopy::copyCatalogue(const QString& source, const QString& target) const
{
    const QString to = messages() + QLatin1Char('/') + target;
    QDir().mkpath(QFileInfo(to).absolutePath());
    require(QFile::copy(HostProcess::stageFolder() + QStringLiteral("/messages/") + source, to),
            "cannot copy " + source);
}
