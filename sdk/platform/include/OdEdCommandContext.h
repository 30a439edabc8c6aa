#pragma once

#include "OdRxObject.h"
#include "TD_RootExport.h"

class OdEdUserIO;

// What the command stack hands to a command it runs.
class TD_ROOT_EXPORT OdEdCommandContext : public OdRxObject
{
public:
    ~OdEdCommandContext() override;

    virtual OdEdUserIO* userIO() = 0;
    // The drawing database the command works on (the active document's), or null.
    virtual OdRxObject* baseDatabase() = 0;
};
