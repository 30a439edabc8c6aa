#include "OdEditorReactor.h"

OdEditorReactor::OdEditorReactor() : m_attachments(static_cast<const void*>(this)) {}

OdEditorReactor::~OdEditorReactor() = default;

void OdEditorReactor::commandWillStart(const OdString&) {}

void OdEditorReactor::commandEnded(const OdString&) {}
