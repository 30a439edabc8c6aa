#include "RibbonHost.h"

#include <QFile>
#include <QJsonDocument>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <CFxUIJsonReader.h>
#include <OdSharedLibrary.h>

#include <stdexcept>

namespace {
template <class Function>
Function as(void* address)
{
    return reinterpret_cast<Function>(address);
}
} // namespace

RibbonHost::RibbonHost(const QJsonObject& profile)
{
    auto ui = std::make_unique<CFxUI>();
    CFxUIJsonReader::read(profile, *ui);
    GetFxSystemServices()->SetUI(std::move(ui));
    m_module = std::make_unique<LoadedModule>();
    m_load = as<decltype(m_load)>(entry("LoadRibbonMenuWrapper"));
    m_unload = as<decltype(m_unload)>(entry("UnLoadRibbonMenuWrapper"));
    m_setVisibility = as<decltype(m_setVisibility)>(entry("SetRibbonItemVisibility"));
    m_loadExportTable = as<decltype(m_loadExportTable)>(entry("LoadExportTableRibbonMenuWrapper"));
    m_unloadExportTable =
        as<decltype(m_unloadExportTable)>(entry("UnLoadExportTableRibbonMenuWrapper"));
}

RibbonHost::~RibbonHost()
{
    m_module.reset();
    GetFxSystemServices()->SetUI(nullptr);
}

QJsonObject RibbonHost::defaultProfile()
{
    QFile file(QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the default UI profile cannot be read");
    return QJsonDocument::fromJson(file.readAll()).object();
}

void* RibbonHost::entry(const char* name) const
{
    // The module is loaded already: opening it again only finds it, and closing gives the
    // reference back.
    OdString error;
    OdModuleHandle library =
        OdSharedLibrary::open(OdString(m_module->path().toStdWString()), error);
    void* address = library ? OdSharedLibrary::resolve(library, name) : nullptr;
    if (library)
        OdSharedLibrary::close(library);
    if (!address)
        throw std::runtime_error(std::string("the module exports no ") + name);
    return address;
}

CFxUI& RibbonHost::ui() const
{
    return *GetFxSystemServices()->GetUI();
}

CFxUIGroup& RibbonHost::mainGroup() const
{
    for (CFxUIGroup* group : ui().GetMenuGroups()) {
        if (group->IsMainGroup())
            return *group;
    }
    throw std::runtime_error("the profile has no main group");
}

void RibbonHost::load(RibbonItem& item, int position) const
{
    m_load(&item, position);
}

void RibbonHost::unload(const QString& id) const
{
    m_unload(id);
}

void RibbonHost::setVisibility(const QString& id, bool visible) const
{
    m_setVisibility(id, visible);
}

void RibbonHost::loadExportTable() const
{
    m_loadExportTable();
}

void RibbonHost::unloadExportTable() const
{
    m_unloadExportTable();
}
