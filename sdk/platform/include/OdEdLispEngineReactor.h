#pragma once

#include "OdRxObject.h"
#include "OdString.h"
#include "TD_RootExport.h"

// Hears of LISP expressions being evaluated. The reference platform has no LISP engine,
// so nothing calls these; hosts that have one do.
class TD_ROOT_EXPORT OdEdLispEngineReactor : public OdRxObject
{
public:
    ~OdEdLispEngineReactor() override;

    virtual void lispWillStart(const OdString& firstLine);
    virtual void lispEnded();
};
