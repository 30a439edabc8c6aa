#pragma once

#include "TD_RootExport.h"

// Base of every reference-counted platform object. Whoever keeps a pointer to an object
// holds a reference (addRef) and gives it back (release); what release does when the
// count reaches zero is the concrete class's choice.
class TD_ROOT_EXPORT OdRxObject
{
public:
    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;
    virtual ~OdRxObject();

    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual long numRefs() const;
};
