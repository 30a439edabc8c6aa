#pragma once

#include "OdModuleHandle.h"
#include "OdRxDynamicLinker.h"
#include "TD_RootExport.h"

#include <cstddef>
#include <memory>
#include <vector>

// The host's side of the dynamic linker that modules see as OdRxDynamicLinker: it finds modules
// as "NAME.tx" in the process already (loaded as another module's dependency) or on the host's
// search path and drives them through their life (initApp after
// loading; uninitApp, deleteModule and the library's unloading on unload). Unload requests for
// modules that are still referenced are carried out by unloadUnreferenced() once the last
// reference is gone.
class TD_ROOT_EXPORT OdHostDynamicLinker final : public OdRxDynamicLinker
{
public:
    OdHostDynamicLinker();
    ~OdHostDynamicLinker() override;

    // Folders searched, in order, for "NAME.tx".
    void setSearchPath(const std::vector<OdString>& folders);
    std::vector<OdString> searchPath() const;
    static OdString moduleFileSuffix();

    OdRxModulePtr loadModule(const OdString& name, bool silent = true) override;
    bool unloadModule(const OdString& name) override;
    OdRxModulePtr getModule(const OdString& name) const override;

    // Carries out the remembered unload requests of modules that nobody references any more.
    void unloadUnreferenced();
    // Shut-down: unloads every module that can be unloaded, the latest loaded first.
    void unloadAll();

    std::vector<OdString> loadedModules() const;
    // The loaded module whose library holds `address` (a function, a vtable, a type), or null.
    OdRxModule* moduleContaining(const void* address) const;

private:
    struct Entry;
    OdRxModulePtr openModule(const OdString& name, OdString& error);
    // The module's library: the one loaded under the module's file name, or else the file
    // found on the search path, opened (its file name in `path`); null with the reason in
    // `error`.
    OdModuleHandle openLibrary(const OdString& name, OdString& path, OdString& error) const;
    void unload(std::size_t index);
    Entry* find(const OdString& name) const;
    OdString findFile(const OdString& name) const;

    std::vector<OdString> m_searchPath;
    std::vector<std::unique_ptr<Entry>> m_modules;
};

// The one dynamic linker, which odrxDynamicLinker() hands to modules.
TD_ROOT_EXPORT OdHostDynamicLinker* odrxHostDynamicLinker();
