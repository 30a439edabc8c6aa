#include "OdRxModule.h"

OdRxModule::OdRxModule() = default;

OdRxModule::~OdRxModule() = default;
