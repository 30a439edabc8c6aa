#include "OdRxObject.h"

OdRxObject::~OdRxObject() = default;

long OdRxObject::numRefs() const
{
    return 1;
}
