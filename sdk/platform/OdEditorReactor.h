#pragma once

#include "OdReactorAttachments.h"
#include "OdRxEventReactor.h"
#include "OdString.h"
#include "TD_RootExport.h"

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

    OdReactorAttachments& reactorAttachments() { return m_attachments; }

private:
    OdReactorAttachments m_attachments;
};
