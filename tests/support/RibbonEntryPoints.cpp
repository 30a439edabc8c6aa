#include "RibbonEntryPoints.h"

#include <OdSharedLibrary.h>

#include <stdexcept>
#include <string>
#include <type_traits>

RibbonEntryPoints RibbonEntryPoints::find(const OdString& libraryPath)
{
    OdString error;
    const OdModuleHandle library = OdSharedLibrary::open(libraryPath, error);
    const auto entry = [library](auto& function, const char* name) {
        void* address = library ? OdSharedLibrary::resolve(library, name) : nullptr;
        if (!address)
            throw std::runtime_error(std::string("the module exports no ") + name);
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(address);
    };
    RibbonEntryPoints found;
    try {
        entry(found.load, "LoadRibbonMenuWrapper");
        entry(found.unload, "UnLoadRibbonMenuWrapper");
        entry(found.setVisibility, "SetRibbonItemVisibility");
        entry(found.loadExportTable, "LoadExportTableRibbonMenuWrapper");
        entry(found.unloadExportTable, "UnLoadExportTableRibbonMenuWrapper");
    } catch (...) {
        if (library)
            OdSharedLibrary::close(library);
        throw;
    }
    OdSharedLibrary::close(library);
    return found;
}
