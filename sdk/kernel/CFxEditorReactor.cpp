#include "CFxEditorReactor.h"

CFxEditorReactor::CFxEditorReactor() = default;

CFxEditorReactor::~CFxEditorReactor() = default;

void CFxEditorReactor::mainFrameCreated(QWidget*) {}

void CFxEditorReactor::mainFrameDestroyed(QWidget*) {}
