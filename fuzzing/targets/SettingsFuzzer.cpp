// The settings files that the module reads, written from the input: the registry stand-in
// (the collaboration connector's switch, the viewer's registered version) and the host's
// system-wide settings (the network companions' switch). Each is read exactly as the module
// reads it, with the sanitizers as the oracle.
#include "FuzzEnvironment.h"
#include "common/SystemRegistry.h"
#include "module/CompanionSettings.h"
#include "publish/ViewerVersion.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <RegistryStandIn.h>
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>

namespace {
QString registryFile()
{
    return FuzzEnvironment::inputFolder() + QStringLiteral("/registry.ini");
}

QString systemFolder()
{
    return FuzzEnvironment::inputFolder() + QStringLiteral("/system");
}

// QSettings keeps a file it has read and reads it again only when its size or its time of
// change is not what it was: every input's files are written with a time of change of their
// own, a second after the last input's.
void save(const QString& path, const std::string& content)
{
    static qint64 changed = 0;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(content.data(), static_cast<qint64>(content.size()));
    file.flush();
    file.setFileTime(QDateTime::fromSecsSinceEpoch(++changed, Qt::UTC),
                     QFileDevice::FileModificationTime);
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    QDir().mkpath(systemFolder() + QStringLiteral("/Corvane"));
    RegistryStandIn::useFile(registryFile());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, systemFolder());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    save(registryFile(), input.ConsumeRandomLengthString(4096));
    save(systemFolder() + QStringLiteral("/Corvane/Quillon.conf"),
         input.ConsumeRemainingBytesAsString());

    CompanionSettings::networkCompanionsDisabled();
    CompanionSettings::collaborationEnabled();
    viewerVersion(SystemRegistry::classesRootDefault(L"VcModelViewer.VcstViewer\\CurVer"));
    return 0;
}
