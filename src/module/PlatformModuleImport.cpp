#include "PlatformModuleImport.h"

#include <QString>

#include <OdRxDynamicLinker.h>

SystemLibrary::Entry PlatformModuleImport::resolve(const char* module, const char* symbol)
{
    const OdRxModulePtr loaded =
        odrxDynamicLinker()->getModule(toOdString(QString::fromLatin1(module)));
    if (!loaded)
        return nullptr;
    // The module's system data is its library's handle, as the system gave it to the linker.
    return SystemLibrary::entry(loaded->sysData(), symbol);
}

bool PlatformModuleImport::call(const char* module, const char* symbol)
{
    auto entry = reinterpret_cast<bool (*)()>(resolve(module, symbol));
    return entry && entry();
}
