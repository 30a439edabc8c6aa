#include "LoadedModule.h"

#include <OdRxDynamicLinker.h>

void LoadedModule::useFolder(const QString& folder)
{
    odrxDynamicLinker()->setSearchPath({toOdString(folder.isEmpty() ? stageFolder() : folder)});
}

LoadedModule::LoadedModule(const QString& name) : m_name(name)
{
    if (odrxDynamicLinker()->searchPath().empty())
        useFolder();
    // A module that cannot be loaded throws OdError, a std::exception that names it.
    OdRxModulePtr module = odrxDynamicLinker()->loadModule(toOdString(name), false);
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
    const bool unloaded = odrxDynamicLinker()->unloadModule(toOdString(m_name));
    odrxDynamicLinker()->unloadUnreferenced();
    return unloaded;
}
