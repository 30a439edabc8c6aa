#include "OdEdCommandStack.h"

OdEdCommandStack::OdEdCommandStack() = default;

OdEdCommandStack::~OdEdCommandStack() = default;
