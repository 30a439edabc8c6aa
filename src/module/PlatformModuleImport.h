#pragma once

#include "SystemLibrary.h"

// Entry points of a companion that is a platform module (loaded and unloaded by the dynamic
// linker). They are looked up in the module as it is loaded at the moment of the call, so an
// unloaded connector is never called and never kept in memory by this module.
class PlatformModuleImport
{
public:
    // The entry point `symbol` of the loaded module `module`; null when the module is not
    // loaded or has no such entry point.
    static SystemLibrary::Entry resolve(const char* module, const char* symbol);
    // Calls the entry point `symbol`, a function without arguments that returns bool; false
    // when it cannot be reached.
    static bool call(const char* module, const char* symbol);
};
