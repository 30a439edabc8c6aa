#include "OdEdLispEngineReactor.h"

OdEdLispEngineReactor::~OdEdLispEngineReactor() = default;

void OdEdLispEngineReactor::lispWillStart(const OdString&) {}

void OdEdLispEngineReactor::lispEnded() {}
