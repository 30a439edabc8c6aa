#pragma once

#include "OdRxEventReactor.h"
#include "OdString.h"
#include "TD_RootExport.h"

#include <memory>

class OdReactorAttachments;
template <class R>
class OdReactorList;

// Hears of what happens in the editor (attach it with odedEditor()->addReactor). A reactor
// destroyed while still attached detaches itself.
class TD_ROOT_EXPORT OdEditorReactor : public OdRxEventReactor
{
public:
    OdEditorReactor();
    ~OdEditorReactor() override;

    // A command typed by the user is about to run / has finished.
    virtual void commandWillStart(const OdString& globalName);
    virtual void commandEnded(const OdString& globalName);

private:
    // The editors it is attached to, which the host's reactor list keeps up to date.
    template <class R>
    friend class OdReactorList;
    OdReactorAttachments& reactorAttachments() { return *m_attachments; }

    std::unique_ptr<OdReactorAttachments> m_attachments;
};
