#pragma once

#include "OdModuleHandle.h"
#include "OdString.h"
#include "TD_RootExport.h"

// The operating system's dynamic loader, as the platform uses it for modules.
class TD_ROOT_EXPORT OdSharedLibrary
{
public:
    // Opens the library at `path`; null on failure, with the reason in `error`.
    static OdModuleHandle open(const OdString& path, OdString& error);
    // The library that is in the process already under the file name `fileName` (no folder),
    // matched as the system matches a library asked for by name: by the name it was loaded
    // under, whatever folder it came from. A reference is taken, as by open(); null when no
    // library of that name is loaded, and nothing is loaded then.
    static OdModuleHandle openLoaded(const OdString& fileName);
    static void* resolve(OdModuleHandle library, const char* symbol);
    static void close(OdModuleHandle library);
    // The full file name of a loaded library.
    static OdString fileName(OdModuleHandle library);
    // Whether the library at `path` is mapped into the process at the moment.
    static bool isLoaded(const OdString& path);
    // The file name of the library that holds `address`; empty when none does.
    static OdString fileContaining(const void* address);
};
