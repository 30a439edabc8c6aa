#include "LoadedModule.h"

#include <CFxHostServices.h>
#include <OdRxDynamicLinker.h>

void LoadedModule::useFolder(const QString& folder)
{
    const QString chosen = folder.isEmpty() ? stageFolder() : folder;
    odrxDynamicLinker()->setSearchPath({toOdString(chosen)});
    GetFxHostServices()->SetCompanionFolder(chosen);
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
