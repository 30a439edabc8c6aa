// The settings files that the module reads, written from the input: the registry stand-in
// (the collaboration connector's switch, the viewer's registered version) and the host's
// system-wide settings (the network companions' switch). Each is read exactly as the module
// reads it, with the sanitizers as the oracle.
#include "FuzzEnvironment.h"
#include "common/SystemRegistry.h"
#include "module/CompanionSettings.h"
#include "publish/ViewerVersion.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <RegistryStandIn.h>
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>

namespace {
void save(const QString& path, const std::string& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content.data(), static_cast<qint64>(content.size()));
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    // A new folder for each input: QSettings caches a file it has read by name and time stamp.
    const QString folder = FuzzEnvironment::freshFolder();
    const QString registry = folder + QStringLiteral("/registry.ini");
    save(registry, input.ConsumeRandomLengthString(4096));
    save(folder + QStringLiteral("/system/Corvane/Quillon.conf"),
         input.ConsumeRemainingBytesAsString());
    RegistryStandIn::useFile(registry);
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       folder + QStringLiteral("/system"));

    CompanionSettings::networkCompanionsDisabled();
    CompanionSettings::collaborationEnabled();
    viewerVersion(SystemRegistry::classesRootDefault(L"VcModelViewer.VcstViewer\\CurVer"));
    return 0;
}
