#include "OdEdCommandContext.h"

OdEdCommandContext::~OdEdCommandContext() = default;
