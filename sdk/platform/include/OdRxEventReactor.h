#pragma once

#include "OdRxObject.h"
#include "TD_RootExport.h"

// Base of the reactors that hear of the platform's application-wide events.
class TD_ROOT_EXPORT OdRxEventReactor : public OdRxObject
{
public:
    ~OdRxEventReactor() override;
};
