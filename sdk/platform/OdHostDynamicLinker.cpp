#include "OdHostDynamicLinker.h"

#include "OdError.h"
#include "OdEventLog.h"
#include "OdHostCommandStack.h"
#include "OdSharedLibrary.h"
#include "RxDynamicModule.h"

#include <QDir>
#include <QFileInfo>
#include <QString>

#include <algorithm>
#include <exception>

namespace {
// Module names are file names: "ExtCommands" and "ExtCommands.tx" name the same module.
QString baseName(const OdString& name)
{
    QString text = QFileInfo(toQString(name)).fileName();
    const QString suffix = toQString(OdHostDynamicLinker::moduleFileSuffix());
    if (text.endsWith(suffix, Qt::CaseInsensitive))
        text.chop(suffix.size());
    return text;
}

void reportModuleEvent(const char* event, const QString& module, const OdEventFields& extra = {})
{
    OdEventFields fields{{QStringLiteral("module"), module}};
    fields += extra;
    OdEventLog::report(QString::fromLatin1(event), fields);
}
} // namespace

struct OdHostDynamicLinker::Entry
{
    QString name;
    QString path;
    OdRxModule* module = nullptr;
    // The library handle, when the module did not take it over in odrxCreateModuleObject.
    OdModuleHandle library = nullptr;
    bool unloadRequested = false;
};

OdHostDynamicLinker::OdHostDynamicLinker() = default;

OdHostDynamicLinker::~OdHostDynamicLinker() = default;

void OdHostDynamicLinker::setSearchPath(const std::vector<OdString>& folders)
{
    m_searchPath = folders;
}

std::vector<OdString> OdHostDynamicLinker::searchPath() const
{
    return m_searchPath;
}

OdString OdHostDynamicLinker::moduleFileSuffix()
{
    return OdString(L".tx");
}

OdRxModulePtr OdHostDynamicLinker::loadModule(const OdString& name, bool silent)
{
    if (Entry* entry = find(name)) {
        entry->unloadRequested = false;
        return OdRxModulePtr(entry->module);
    }
    OdString error;
    OdRxModulePtr module = openModule(name, error);
    if (module)
        return module;
    if (!silent)
        throw OdError(error);
    reportModuleEvent("module-load-failed", baseName(name),
                      {{QStringLiteral("reason"), toQString(error)}});
    return OdRxModulePtr();
}

OdString OdHostDynamicLinker::findFile(const OdString& name) const
{
    const QString file = baseName(name) + toQString(moduleFileSuffix());
    for (const OdString& folder : m_searchPath) {
        const QFileInfo candidate(QDir(toQString(folder)), file);
        if (candidate.isFile())
            return toOdString(candidate.absoluteFilePath());
    }
    return OdString();
}

OdModuleHandle OdHostDynamicLinker::openLibrary(const OdString& name, OdString& path,
                                                OdString& error) const
{
    const QString moduleName = baseName(name);
    // A module's library may be in the process already without the linker having loaded it: a
    // module that calls another's functions links its library by file name, and the system maps
    // that as a dependency, from wherever the linking module's search finds it. Opening the
    // file on the search path by its full path would then map a second copy, with state of its
    // own, since the system matches a full path only against the same file. A module is one per
    // process, known by its name, so the library loaded under that name is the module.
    const OdString fileName = toOdString(moduleName + toQString(moduleFileSuffix()));
    if (OdModuleHandle loaded = OdSharedLibrary::openLoaded(fileName)) {
        path = OdSharedLibrary::fileName(loaded);
        return loaded;
    }
    path = findFile(name);
    if (path.isEmpty()) {
        QStringList folders;
        for (const OdString& folder : m_searchPath)
            folders << toQString(folder);
        error = toOdString(QStringLiteral("module %1 not found (looked for %1%2 in: %3)")
                               .arg(moduleName, toQString(moduleFileSuffix()),
                                    folders.isEmpty() ? QStringLiteral("no folder")
                                                      : folders.join(QStringLiteral(", "))));
        return nullptr;
    }
    OdString loaderError;
    OdModuleHandle library = OdSharedLibrary::open(path, loaderError);
    if (!library)
        error = toOdString(QStringLiteral("module %1 cannot be loaded: %2")
                               .arg(moduleName, toQString(loaderError)));
    return library;
}

OdRxModulePtr OdHostDynamicLinker::openModule(const OdString& name, OdString& error)
{
    const QString moduleName = baseName(name);
    OdString path;
    OdModuleHandle library = openLibrary(name, path, error);
    if (!library)
        return OdRxModulePtr();
    auto getVersion = reinterpret_cast<OdGetAPIVersionFunction>(
        OdSharedLibrary::resolve(library, "odrxGetAPIVersion"));
    auto createObject = reinterpret_cast<OdCreateModuleObjectFunction>(
        OdSharedLibrary::resolve(library, "odrxCreateModuleObject"));
    if (!getVersion || !createObject) {
        OdSharedLibrary::close(library);
        error = toOdString(QStringLiteral("%1 is not a platform module (no odrxGetAPIVersion or "
                                          "odrxCreateModuleObject)")
                               .arg(toQString(path)));
        return OdRxModulePtr();
    }
    int major = 0, minor = 0, fix = 0, build = 0;
    getVersion(major, minor, fix, build);
    if (major != ODRX_API_MAJOR || minor != ODRX_API_MINOR) {
        OdSharedLibrary::close(library);
        error = toOdString(QStringLiteral("module %1 was built for platform API %2.%3.%4.%5, "
                                          "this platform is %6.%7")
                               .arg(moduleName)
                               .arg(major)
                               .arg(minor)
                               .arg(fix)
                               .arg(build)
                               .arg(ODRX_API_MAJOR)
                               .arg(ODRX_API_MINOR));
        return OdRxModulePtr();
    }
    OdModuleHandle handle = library;
    OdRxModule* module = nullptr;
    try {
        module = createObject(handle);
    } catch (const std::exception& failure) {
        OdSharedLibrary::close(library);
        error = toOdString(QStringLiteral("module %1 could not create its module object: %2")
                               .arg(moduleName, QString::fromLocal8Bit(failure.what())));
        return OdRxModulePtr();
    }
    if (!module) {
        OdSharedLibrary::close(library);
        error = toOdString(QStringLiteral("module %1 created no module object").arg(moduleName));
        return OdRxModulePtr();
    }
    auto entry = std::make_unique<Entry>();
    entry->name = moduleName;
    entry->path = toQString(path);
    entry->module = module;
    entry->library = handle;
    m_modules.push_back(std::move(entry));
    reportModuleEvent("module-loaded", moduleName);
    OdRxModulePtr result(module);
    module->initApp();
    return result;
}

bool OdHostDynamicLinker::unloadModule(const OdString& name)
{
    Entry* entry = find(name);
    if (!entry) {
        reportModuleEvent("module-unload-skipped", baseName(name),
                          {{QStringLiteral("reason"), QStringLiteral("not loaded")}});
        return false;
    }
    if (entry->module->numRefs() > 0) {
        entry->unloadRequested = true;
        reportModuleEvent(
            "module-unload-deferred", entry->name,
            {{QStringLiteral("references"), static_cast<int>(entry->module->numRefs())}});
        return false;
    }
    const auto at =
        std::find_if(m_modules.begin(), m_modules.end(),
                     [entry](const auto& candidate) { return candidate.get() == entry; });
    unload(static_cast<std::size_t>(at - m_modules.begin()));
    return true;
}

void OdHostDynamicLinker::unload(std::size_t index)
{
    std::unique_ptr<Entry> entry = std::move(m_modules[index]);
    m_modules.erase(m_modules.begin() + static_cast<std::ptrdiff_t>(index));
    OdRxModule* module = entry->module;
    module->uninitApp();
    odedHostRegCmds()->removeCommandsDefinedIn(toOdString(entry->path));
    OdModuleHandle library =
        entry->library ? entry->library : static_cast<OdModuleHandle>(module->sysData());
    module->deleteModule();
    if (library)
        OdSharedLibrary::close(library);
    reportModuleEvent("module-unloaded", entry->name);
}

void OdHostDynamicLinker::unloadUnreferenced()
{
    // Unloading one module may release the last reference to another: start over each time.
    for (bool unloaded = true; unloaded;) {
        unloaded = false;
        for (std::size_t i = m_modules.size(); i-- > 0;) {
            const Entry& entry = *m_modules[i];
            if (entry.unloadRequested && entry.module->numRefs() == 0) {
                unload(i);
                unloaded = true;
                break;
            }
        }
    }
}

void OdHostDynamicLinker::unloadAll()
{
    for (const auto& entry : m_modules)
        entry->unloadRequested = true;
    unloadUnreferenced();
    for (const auto& entry : m_modules)
        reportModuleEvent(
            "module-unload-deferred", entry->name,
            {{QStringLiteral("references"), static_cast<int>(entry->module->numRefs())}});
}

OdRxModulePtr OdHostDynamicLinker::getModule(const OdString& name) const
{
    const Entry* entry = find(name);
    return OdRxModulePtr(entry ? entry->module : nullptr);
}

std::vector<OdString> OdHostDynamicLinker::loadedModules() const
{
    std::vector<OdString> names;
    for (const auto& entry : m_modules)
        names.push_back(toOdString(entry->name));
    return names;
}

OdRxModule* OdHostDynamicLinker::moduleContaining(const void* address) const
{
    const QString file = toQString(OdSharedLibrary::fileContaining(address));
    for (const auto& entry : m_modules) {
        if (QFileInfo(entry->path).canonicalFilePath() == QFileInfo(file).canonicalFilePath())
            return entry->module;
    }
    return nullptr;
}

OdHostDynamicLinker::Entry* OdHostDynamicLinker::find(const OdString& name) const
{
    const QString wanted = baseName(name);
    for (const auto& entry : m_modules) {
        if (entry->name.compare(wanted, Qt::CaseInsensitive) == 0)
            return entry.get();
    }
    return nullptr;
}

OdHostDynamicLinker* odrxHostDynamicLinker()
{
    static OdHostDynamicLinker linker;
    return &linker;
}

OdRxDynamicLinker* odrxDynamicLinker()
{
    return odrxHostDynamicLinker();
}
