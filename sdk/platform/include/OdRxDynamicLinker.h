#pragma once

#include "OdRxModule.h"
#include "OdString.h"
#include "TD_RootExport.h"

// Loads modules by name and unloads them, as a module reaches it through odrxDynamicLinker().
// A module is unloaded only while nobody holds a reference to its module object; an unload
// request for a module that is still referenced waits until the last reference goes.
class TD_ROOT_EXPORT OdRxDynamicLinker
{
public:
    OdRxDynamicLinker(const OdRxDynamicLinker&) = delete;
    OdRxDynamicLinker& operator=(const OdRxDynamicLinker&) = delete;

    // Loads the module (or returns the loaded one). A module that cannot be loaded gives null
    // when `silent`, and throws OdError with the reason otherwise.
    virtual OdRxModulePtr loadModule(const OdString& name, bool silent = true) = 0;
    // Unloads the module now if it is unreferenced; otherwise remembers the request. Returns
    // whether the module was unloaded.
    virtual bool unloadModule(const OdString& name) = 0;
    // The loaded module of that name, or null.
    virtual OdRxModulePtr getModule(const OdString& name) const = 0;

protected:
    OdRxDynamicLinker();
    virtual ~OdRxDynamicLinker();
};

TD_ROOT_EXPORT OdRxDynamicLinker* odrxDynamicLinker();
