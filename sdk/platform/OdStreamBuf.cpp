#include "OdStreamBuf.h"

OdStreamBuf::~OdStreamBuf() = default;
