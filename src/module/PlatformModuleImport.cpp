#include "PlatformModuleImport.h"

#include <QString>

#include <OdRxDynamicLinker.h>
#include <OdSharedLibrary.h>

void* PlatformModuleImport::resolve(const char* module, const char* symbol)
{
    const OdRxModulePtr loaded =
        odrxDynamicLinker()->getModule(toOdString(QString::fromLatin1(module)));
    if (!loaded)
        return nullptr;
    return OdSharedLibrary::resolve(static_cast<OdModuleHandle>(loaded->sysData()), symbol);
}

bool PlatformModuleImport::call(const char* module, const char* symbol)
{
    auto entry = reinterpret_cast<bool (*)()>(resolve(module, symbol));
    return entry && entry();
}
