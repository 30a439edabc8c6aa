#pragma once

#include "OdEditor.h"
#include "OdEditorReactor.h"
#include "OdReactorList.h"
#include "TD_RootExport.h"

#include <cstddef>
#include <functional>

// The host's side of the editor that modules see as OdEditor: it keeps the attached reactors
// and tells them what happens, in the order they were attached.
class TD_ROOT_EXPORT OdHostEditor final : public OdEditor
{
public:
    OdHostEditor();
    ~OdHostEditor() override;

    void addReactor(OdEditorReactor* reactor) override;
    void removeReactor(OdEditorReactor* reactor) override;
    bool hasReactor(const OdEditorReactor* reactor) const;
    std::size_t reactorCount() const;

    // Calls `notification` for every attached reactor, in attachment order.
    void notify(const std::function<void(OdEditorReactor*)>& notification);

private:
    OdReactorList<OdEditorReactor> m_reactors;
};

// The one editor, which odedEditor() hands to modules.
TD_ROOT_EXPORT OdHostEditor* odedHostEditor();
