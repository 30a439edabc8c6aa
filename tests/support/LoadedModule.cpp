#include "LoadedModule.h"

#include <CFxSystemServices.h>
#include <OdRxDynamicLinker.h>

void LoadedModule::useFolder(const QString& folder)
{
    const QString chosen = folder.isEmpty() ? stageFolder() : folder;
    odrxDynamicLinker()->setSearchPath({OdString(chosen.toStdWString())});
    GetFxSystemServices()->SetCompanionFolder(chosen);
}

LoadedModule::LoadedModule(const QString& name) : m_name(name)
{
    if (odrxDynamicLinker()->searchPath().empty())
        useFolder();
    // A module that cannot be loaded throws OdError, a std::exception that names it.
    OdRxModulePtr module = odrxDynamicLinker()->loadModule(OdString(name.toStdWString()), false);
    m_module = module.get();
    m_path = QString::fromStdWString(m_module->moduleName().wide());
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
    const bool unloaded = odrxDynamicLinker()->unloadModule(OdString(m_name.toStdWString()));
    odrxDynamicLinker()->unloadUnreferenced();
    return unloaded;
}
