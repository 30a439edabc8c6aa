#pragma once

#include "OdAlloc.h"
#include "OdModuleHandle.h"
#include "OdRxModule.h"
#include "TD_RootExport.h"

#include <atomic>
#include <cstdint>

#if defined(_WIN32)
#include <windows.h>
#else
#include <QFileInfo>
#include <QString>

#include <dlfcn.h>
#include <link.h>
#endif

// The process-wide pointer to a module's one module object. Every module defines its own
// (ODRX_DEFINE_DYNAMIC_MODULE); it never leaves the module's library.
extern ODRX_MODULE_LOCAL OdRxModule* moduleSingleton;

// The class that a module actually instantiates: it adds the reference count and the
// library handle to the module class T. The count is changed atomically and never deletes
// the object: the dynamic linker decides when a module goes.
template <class T>
class OdRxWin32Module : public T
{
public:
    explicit OdRxWin32Module(OdModuleHandle module) : m_module(module) {}

    void addRef() override { m_references.fetch_add(1); }
    void release() override { m_references.fetch_sub(1); }
    long numRefs() const override { return m_references.load(); }

    void* sysData() override { return m_module; }

    void deleteModule() override
    {
        moduleSingleton = nullptr;
        this->~OdRxWin32Module();
        ::odrxFree(this);
    }

    // The file name of the module's library, as the system names it: its absolute path, with
    // Windows' separators and at most MAX_PATH characters there. No library has no name
    // (GetModuleFileNameW would otherwise name the program).
    OdString moduleName() const override
    {
        if (!m_module)
            return OdString();
#if defined(_WIN32)
        wchar_t buffer[MAX_PATH] = {};
        ::GetModuleFileNameW(m_module, buffer, MAX_PATH);
        return OdString(buffer);
#else
        link_map* map = nullptr;
        if (::dlinfo(m_module, RTLD_DI_LINKMAP, &map) != 0 || !map)
            return OdString();
        return toOdString(QFileInfo(QString::fromLocal8Bit(map->l_name)).absoluteFilePath());
#endif
    }

private:
    std::atomic<std::int32_t> m_references{0};
    OdModuleHandle m_module;
};
