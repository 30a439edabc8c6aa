#pragma once

#include "OdRxObject.h"
#include "OdSmartPtr.h"
#include "OdString.h"
#include "TD_RootExport.h"

// A loadable module as the platform sees it. The dynamic linker creates it through the
// module's exported odrxCreateModuleObject, calls initApp after loading, and uninitApp and
// then deleteModule before it unloads the library.
class TD_ROOT_EXPORT OdRxModule : public OdRxObject
{
public:
    // The operating system's handle of the module's library.
    virtual void* sysData() = 0;
    // Destroys and frees the module object.
    virtual void deleteModule() = 0;
    virtual void initApp() = 0;
    virtual void uninitApp() = 0;
    // The full file name of the module's library.
    virtual OdString moduleName() const = 0;

protected:
    OdRxModule();
    ~OdRxModule() override;
};

using OdRxModulePtr = OdSmartPtr<OdRxModule>;
