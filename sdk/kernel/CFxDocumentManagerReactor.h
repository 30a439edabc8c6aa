#pragma once

#include "FxKernelExport.h"

#include <OdReactorAttachments.h>

class CFxDocument;

// Hears of documents being created, closed and activated (attach it with the document
// manager's AddReactor). A reactor destroyed while still attached detaches itself.
class FX_KERNEL_EXPORT CFxDocumentManagerReactor
{
public:
    CFxDocumentManagerReactor();
    virtual ~CFxDocumentManagerReactor();
    CFxDocumentManagerReactor(const CFxDocumentManagerReactor&) = delete;
    CFxDocumentManagerReactor& operator=(const CFxDocumentManagerReactor&) = delete;

    virtual void DocumentCreated(CFxDocument* document);
    virtual void DocumentToBeDestroyed(CFxDocument* document);
    virtual void DocumentActivated(CFxDocument* document);
    // The last document has been closed.
    virtual void DocumentsClosed();

    OdReactorAttachments& reactorAttachments() { return m_attachments; }

private:
    OdReactorAttachments m_attachments;
};
