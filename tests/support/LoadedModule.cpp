#include "LoadedModule.h"

#include <CFxSystemServices.h>
#include <OdError.h>
#include <OdRxDynamicLinker.h>

#include <stdexcept>

QString LoadedModule::stageFolder()
{
    return QStringLiteral(EC_STAGE_DIR);
}

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
    try {
        OdRxModulePtr module =
            odrxDynamicLinker()->loadModule(OdString(name.toStdWString()), false);
        m_module = module.get();
        m_path = QString::fromStdWString(m_module->moduleName().wide());
    } catch (const OdError& error) {
        throw std::runtime_error(error.what());
    }
}

LoadedModule::~LoadedModule()
{
    unload();
}

QString LoadedModule::path() const
{
    return m_path;
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
