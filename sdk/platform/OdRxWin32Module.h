#pragma once

#include "OdAlloc.h"
#include "OdModuleHandle.h"
#include "OdRxModule.h"
#include "OdSharedLibrary.h"
#include "TD_RootExport.h"

#include <atomic>
#include <cstdint>

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

    OdString moduleName() const override { return OdSharedLibrary::fileName(m_module); }

private:
    std::atomic<std::int32_t> m_references{0};
    OdModuleHandle m_module;
};
