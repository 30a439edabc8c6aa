#pragma once

#include "EventRecorder.h"
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "RibbonEntryPoints.h"

#include <QStringList>

#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <ExtCommands/RibbonItem.h>

#include <memory>

inline const QString kAddInsTab = QStringLiteral("ID_RibbonAddInsTab");
inline const QString kDefaultProfile = QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json");

// A record for the Add-Ins row; text, command name and description made from `id`.
RibbonItem record(const QString& id, const QString& type = QStringLiteral("command"));

template <class T>
T* exactly(const CFxUIList<T>& list, const QString& id)
{
    for (T* item : list) {
        if (item->GetIdentifier().toQString() == id)
            return item;
    }
    return nullptr;
}

template <class T>
QStringList ids(const CFxUIList<T>& list)
{
    QStringList result;
    for (const T* item : list)
        result << item->GetIdentifier().toQString();
    return result;
}

QStringList texts(const CFxUIList<CFxUIRibbonButton>& buttons);
// The row, or the entry on the path through the application menu (exact identifiers), or null.
CFxUIRibbonRow* row(const CFxUIGroup& group, const QString& tabId, const QString& panelId,
                    const QString& rowId);
CFxUIRibbonSystemMenuItem* menuEntry(const CFxUIGroup& group, const QStringList& path);

// The module loaded afresh through the platform's dynamic linker (its tables start empty), a
// host UI from the default profile, and the exported functions found by name, as a sibling
// finds them. The module is unloaded and the UI dropped with it.
class RibbonHost : public RibbonEntryPoints
{
public:
    RibbonHost();
    ~RibbonHost();

    CFxHostUI& ui() const { return *GetFxHostServices()->GetUI(); }
    CFxUIGroup& mainGroup() const { return *exactly(ui().GetMenuGroups(), "QUILLON"); }
    const RecordedEvents& events() const { return m_events.events(); }
    CFxUIRibbonRow* addInsRow() const;
    QStringList addInsButtons() const
    {
        return addInsRow() ? ids(addInsRow()->GetButtons()) : QStringList();
    }
    CFxUIRibbonButton* addInsButton(const QString& id) const
    {
        return addInsRow() ? exactly(addInsRow()->GetButtons(), id) : nullptr;
    }

private:
    IsolatedHome m_home;
    EventRecorder m_events;
    std::unique_ptr<LoadedModule> m_module;
};
