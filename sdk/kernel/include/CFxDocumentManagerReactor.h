#pragma once

#include "FxKernelExport.h"

#include <memory>

class CFxDocument;
class OdReactorAttachments;
template <class R>
class OdReactorList;

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

private:
    // The document managers it is attached to, which the host's reactor list keeps up to date.
    template <class R>
    friend class OdReactorList;
    OdReactorAttachments& reactorAttachments() { return *m_attachments; }

    std::unique_ptr<OdReactorAttachments> m_attachments;
};
