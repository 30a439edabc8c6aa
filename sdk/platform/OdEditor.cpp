#include "OdEditor.h"

OdEditor::OdEditor() = default;

OdEditor::~OdEditor() = default;
