#include "CFxDocumentManagerReactor.h"

CFxDocumentManagerReactor::CFxDocumentManagerReactor()
    : m_attachments(static_cast<const void*>(this))
{}

CFxDocumentManagerReactor::~CFxDocumentManagerReactor() = default;

void CFxDocumentManagerReactor::DocumentCreated(CFxDocument*) {}

void CFxDocumentManagerReactor::DocumentToBeDestroyed(CFxDocument*) {}

void CFxDocumentManagerReactor::DocumentActivated(CFxDocument*) {}

void CFxDocumentManagerReactor::DocumentsClosed() {}
