#include "OdEditorReactor.h"

#include "OdReactorAttachments.h"

OdEditorReactor::OdEditorReactor()
    : m_attachments(std::make_unique<OdReactorAttachments>(static_cast<const void*>(this)))
{}

OdEditorReactor::~OdEditorReactor() = default;

void OdEditorReactor::commandWillStart(const OdString&) {}

void OdEditorReactor::commandEnded(const OdString&) {}
