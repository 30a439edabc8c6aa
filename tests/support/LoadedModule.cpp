#include "LoadedModule.h"

#include <OdHostDynamicLinker.h>

void LoadedModule::useFolder(const QString& folder)
{
    odrxHostDynamicLinker()->setSearchPath({toOdString(folder.isEmpty() ? stageFolder() : folder)});
}

LoadedModule::LoadedModule(const QString& name) : m_name(name)
{
    if (odrxHostDynamicLinker()->searchPath().empty())
        useFolder();
    // A module that cannot be loaded throws OdError, a std::exception that names it.
    OdRxModulePtr module = odrxHostDynamicLinker()->loadModule(toOdString(name), false);
    m_module = module.get();
    m_path = toQString(m_module->moduleName());
}

LoadedModule::~LoadedModule()
{
    unload();
}

bool LoadedModule::unload()
{
    if (!m_module)
        return false;
    m_module = nullptr;
    const bool unloaded = odrxHostDynamicLinker()->unloadModule(toOdString(m_name));
    odrxHostDynamicLinker()->unloadUnreferenced();
    return unloaded;
}
