#pragma once

#include "OdEditorReactor.h"
#include "OdReactorList.h"
#include "TD_RootExport.h"

#include <functional>

// The editor: the reactors that follow the user's work. Reactors are lent, not owned: the
// editor holds a reference while one is attached and gives it back when it is removed.
class TD_ROOT_EXPORT OdEditor
{
public:
    OdEditor();
    ~OdEditor();

    void addReactor(OdEditorReactor* reactor);
    void removeReactor(OdEditorReactor* reactor);
    bool hasReactor(const OdEditorReactor* reactor) const;
    std::size_t reactorCount() const;

    // Calls `notification` for every attached reactor, in attachment order.
    void notify(const std::function<void(OdEditorReactor*)>& notification);

private:
    OdReactorList<OdEditorReactor> m_reactors;
};

TD_ROOT_EXPORT OdEditor* odedEditor();
