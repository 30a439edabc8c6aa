#include "OdEdCommandStackReactor.h"

OdEdCommandStackReactor::~OdEdCommandStackReactor() = default;

void OdEdCommandStackReactor::commandAdded(OdEdCommand*) {}

void OdEdCommandStackReactor::commandWillBeRemoved(OdEdCommand*) {}
