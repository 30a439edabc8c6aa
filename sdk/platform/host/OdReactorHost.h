#pragma once

#include "TD_RootExport.h"

// Something that reactors attach to (the editor, the document manager). When a reactor is
// destroyed while still attached, the host is told to forget it instead of calling into a
// destroyed object later.
class TD_ROOT_EXPORT OdReactorHost
{
public:
    virtual void forgetDestroyedReactor(const void* reactor) = 0;

protected:
    ~OdReactorHost();
};
