#pragma once

#include "OdAlloc.h"
#include "OdPlatformVersion.h"
#include "OdRxWin32Module.h"

#include <new>

// Defines the two entry points through which the platform loads a module, and the module's
// moduleSingleton. Use it once per module, in one source file, with the module class.
#define ODRX_DEFINE_DYNAMIC_MODULE(ModuleClass)                                                    \
    OdRxModule* moduleSingleton = nullptr;                                                         \
                                                                                                   \
    extern "C" ODRX_MODULE_EXPORT void odrxGetAPIVersion(int& major, int& minor, int& fix,         \
                                                         int& build)                               \
    {                                                                                              \
        major = ODRX_API_MAJOR;                                                                    \
        minor = ODRX_API_MINOR;                                                                    \
        fix = ODRX_API_FIX;                                                                        \
        build = ODRX_API_BUILD;                                                                    \
    }                                                                                              \
                                                                                                   \
    extern "C" ODRX_MODULE_EXPORT OdRxModule* odrxCreateModuleObject(OdModuleHandle& module)       \
    {                                                                                              \
        if (!moduleSingleton) {                                                                    \
            void* memory = ::odrxAlloc(sizeof(OdRxWin32Module<ModuleClass>));                      \
            if (!memory)                                                                           \
                throw std::bad_alloc();                                                            \
            moduleSingleton = ::new (memory) OdRxWin32Module<ModuleClass>(module);                 \
            module = nullptr;                                                                      \
        }                                                                                          \
        return moduleSingleton;                                                                    \
    }

// Signatures of the two entry points, as the dynamic linker resolves them.
using OdGetAPIVersionFunction = void (*)(int&, int&, int&, int&);
using OdCreateModuleObjectFunction = OdRxModule* (*)(OdModuleHandle&);
