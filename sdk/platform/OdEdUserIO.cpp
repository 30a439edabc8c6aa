#include "OdEdUserIO.h"

OdEdUserIO::~OdEdUserIO() = default;
