#include "CFxDocumentManagerReactor.h"

#include <OdReactorAttachments.h>

CFxDocumentManagerReactor::CFxDocumentManagerReactor()
    : m_attachments(std::make_unique<OdReactorAttachments>(static_cast<const void*>(this)))
{}

CFxDocumentManagerReactor::~CFxDocumentManagerReactor() = default;

void CFxDocumentManagerReactor::DocumentCreated(CFxDocument*) {}

void CFxDocumentManagerReactor::DocumentToBeDestroyed(CFxDocument*) {}

void CFxDocumentManagerReactor::DocumentActivated(CFxDocument*) {}

void CFxDocumentManagerReactor::DocumentsClosed() {}
