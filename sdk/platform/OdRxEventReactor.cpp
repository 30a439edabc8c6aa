#include "OdRxEventReactor.h"

OdRxEventReactor::~OdRxEventReactor() = default;
