#include "OdRxDynamicLinker.h"

OdRxDynamicLinker::OdRxDynamicLinker() = default;

OdRxDynamicLinker::~OdRxDynamicLinker() = default;
