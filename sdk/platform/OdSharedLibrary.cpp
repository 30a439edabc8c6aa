#include "OdSharedLibrary.h"

#include <QFileInfo>
#include <QString>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#include <link.h>
#endif

#if defined(_WIN32)

OdModuleHandle OdSharedLibrary::open(const OdString& path, OdString& error)
{
    HMODULE library = ::LoadLibraryW(path.c_str());
    if (!library)
        error =
            toOdString(QStringLiteral("LoadLibrary failed with error %1").arg(::GetLastError()));
    return library;
}

// Without a folder, the system takes a loaded module of that name, whichever folder it came
// from; the flags of 0 take a reference, which close() gives back.
OdModuleHandle OdSharedLibrary::openLoaded(const OdString& fileName)
{
    HMODULE library = nullptr;
    if (!::GetModuleHandleExW(0, fileName.c_str(), &library))
        return nullptr;
    return library;
}

void* OdSharedLibrary::resolve(OdModuleHandle library, const char* symbol)
{
    return reinterpret_cast<void*>(::GetProcAddress(library, symbol));
}

void OdSharedLibrary::close(OdModuleHandle library)
{
    ::FreeLibrary(library);
}

// The system's own name of the file, as modules report it: at most MAX_PATH characters, with
// Windows' separators. No library has no name, as with dlinfo (GetModuleFileNameW would
// otherwise name the program).
OdString OdSharedLibrary::fileName(OdModuleHandle library)
{
    if (!library)
        return OdString();
    wchar_t buffer[MAX_PATH] = {};
    ::GetModuleFileNameW(library, buffer, MAX_PATH);
    return OdString(buffer);
}

bool OdSharedLibrary::isLoaded(const OdString& path)
{
    return ::GetModuleHandleW(path.c_str()) != nullptr;
}

OdString OdSharedLibrary::fileContaining(const void* address)
{
    HMODULE library = nullptr;
    const DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!::GetModuleHandleExW(flags, static_cast<LPCWSTR>(address), &library))
        return OdString();
    return fileName(library);
}

#else

OdModuleHandle OdSharedLibrary::open(const OdString& path, OdString& error)
{
    void* library = ::dlopen(toQString(path).toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        error = toOdString(QString::fromLocal8Bit(::dlerror()));
    return library;
}

// A name without a folder matches the loaded objects' names and sonames, so a library that
// came in as another library's dependency is found whichever folder its file lies in. Only if
// none matches does the loader search its folders, and RTLD_NOLOAD keeps it from mapping what
// it finds there.
OdModuleHandle OdSharedLibrary::openLoaded(const OdString& fileName)
{
    return ::dlopen(toQString(fileName).toLocal8Bit().constData(), RTLD_NOW | RTLD_NOLOAD);
}

void* OdSharedLibrary::resolve(OdModuleHandle library, const char* symbol)
{
    return ::dlsym(library, symbol);
}

void OdSharedLibrary::close(OdModuleHandle library)
{
    ::dlclose(library);
}

OdString OdSharedLibrary::fileName(OdModuleHandle library)
{
    link_map* map = nullptr;
    if (!library || ::dlinfo(library, RTLD_DI_LINKMAP, &map) != 0 || !map)
        return OdString();
    return toOdString(QFileInfo(QString::fromLocal8Bit(map->l_name)).absoluteFilePath());
}

bool OdSharedLibrary::isLoaded(const OdString& path)
{
    void* library = ::dlopen(toQString(path).toLocal8Bit().constData(), RTLD_NOW | RTLD_NOLOAD);
    if (!library)
        return false;
    ::dlclose(library);
    return true;
}

OdString OdSharedLibrary::fileContaining(const void* address)
{
    Dl_info info{};
    if (!::dladdr(address, &info) || !info.dli_fname)
        return OdString();
    return toOdString(QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absoluteFilePath());
}

#endif
