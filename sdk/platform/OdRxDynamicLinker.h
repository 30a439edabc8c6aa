#pragma once

#include "OdRxModule.h"
#include "OdString.h"
#include "TD_RootExport.h"

#include <memory>
#include <vector>

// Loads modules by name from a search path and drives them through their life:
// initApp after loading; uninitApp, deleteModule and the library's unloading on unload.
//
// A module is unloaded only while nobody holds a reference to its module object. An unload
// request for a module that is still referenced is remembered, and carried out by
// unloadUnreferenced() once the last reference is gone.
class TD_ROOT_EXPORT OdRxDynamicLinker
{
public:
    OdRxDynamicLinker();
    ~OdRxDynamicLinker();
    OdRxDynamicLinker(const OdRxDynamicLinker&) = delete;
    OdRxDynamicLinker& operator=(const OdRxDynamicLinker&) = delete;

    // Folders searched, in order, for "NAME.tx".
    void setSearchPath(const std::vector<OdString>& folders);
    std::vector<OdString> searchPath() const;
    static OdString moduleFileSuffix();

    // Loads the module (or returns the loaded one). A module that cannot be loaded gives null
    // when `silent`, and throws OdError with the reason otherwise.
    OdRxModulePtr loadModule(const OdString& name, bool silent = true);
    // Unloads the module now if it is unreferenced; otherwise remembers the request. Returns
    // whether the module was unloaded.
    bool unloadModule(const OdString& name);
    // Carries out the remembered unload requests of modules that nobody references any more.
    void unloadUnreferenced();
    // Shut-down: unloads every module that can be unloaded, the latest loaded first.
    void unloadAll();

    OdRxModulePtr getModule(const OdString& name) const;
    std::vector<OdString> loadedModules() const;
    // The loaded module whose library holds `address` (a function, a vtable, a type), or null.
    OdRxModule* moduleContaining(const void* address) const;

private:
    struct Entry;
    OdRxModulePtr openModule(const OdString& name, OdString& error);
    void unload(std::size_t index);
    Entry* find(const OdString& name) const;
    OdString findFile(const OdString& name) const;

    std::vector<OdString> m_searchPath;
    std::vector<std::unique_ptr<Entry>> m_modules;
};

TD_ROOT_EXPORT OdRxDynamicLinker* odrxDynamicLinker();
