#pragma once

#include "OdRxObject.h"
#include "TD_RootExport.h"

class OdEdCommand;

// Hears of commands being added to or removed from the command stack.
class TD_ROOT_EXPORT OdEdCommandStackReactor : public OdRxObject
{
public:
    ~OdEdCommandStackReactor() override;

    virtual void commandAdded(OdEdCommand* command);
    virtual void commandWillBeRemoved(OdEdCommand* command);
};
