#pragma once

#include "CFxDocument.h"
#include "CFxDocumentManagerReactor.h"
#include "FxKernelExport.h"

// The host's open documents, as a module reaches them through GetFxSystemServices(): the active
// one, and the reactors that hear of documents coming, going and being activated.
class FX_KERNEL_EXPORT CFxDocumentManager
{
public:
    CFxDocumentManager(const CFxDocumentManager&) = delete;
    CFxDocumentManager& operator=(const CFxDocumentManager&) = delete;

    virtual void AddReactor(CFxDocumentManagerReactor* reactor) = 0;
    virtual void RemoveReactor(CFxDocumentManagerReactor* reactor) = 0;
    // The document the user works in, or null when none is open.
    virtual CFxDocument* GetActiveDocument() const = 0;

protected:
    CFxDocumentManager();
    virtual ~CFxDocumentManager();
};
