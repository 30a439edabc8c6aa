#pragma once

#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"

#include <QJsonObject>

#include <ExtCommands/RibbonItem.h>

#include <memory>

class CFxUI;
class CFxUIGroup;

// The ExtCommands module loaded into this process through the platform's dynamic linker, as
// the host loads it, with a host UI built from a profile; and the module's exported functions
// as a sibling reaches them, by name from the loaded library. Everything goes with it: the
// module is unloaded and the UI dropped.
class RibbonHost
{
public:
    explicit RibbonHost(const QJsonObject& profile = defaultProfile());
    ~RibbonHost();
    RibbonHost(const RibbonHost&) = delete;
    RibbonHost& operator=(const RibbonHost&) = delete;

    // The host's own profile, host/profiles/default.json.
    static QJsonObject defaultProfile();

    CFxUI& ui() const;
    CFxUIGroup& mainGroup() const;
    const RecordedEvents& events() const { return m_events.events(); }

    void load(RibbonItem& item, int position = 0) const;
    void unload(const QString& id) const;
    void setVisibility(const QString& id, bool visible) const;
    void loadExportTable() const;
    void unloadExportTable() const;

private:
    void* entry(const char* name) const;

    IsolatedHome m_home;
    EventRecorder m_events;
    std::unique_ptr<LoadedModule> m_module;
    void (*m_load)(RibbonItem*, int);
    void (*m_unload)(const QString&);
    void (*m_setVisibility)(const QString&, bool);
    void (*m_loadExportTable)();
    void (*m_unloadExportTable)();
};
