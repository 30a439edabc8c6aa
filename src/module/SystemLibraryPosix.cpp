#include "SystemLibrary.h"

#include <dlfcn.h>

// dlopen is called here, in the module's own code, on purpose: for a bare file name the system
// searches LD_LIBRARY_PATH and the run-time path of the object that calls dlopen, which is then
// this module and not a library that the module goes through.
void* SystemLibrary::load(const std::string& fileName)
{
    return dlopen(fileName.c_str(), RTLD_NOW | RTLD_LOCAL);
}

SystemLibrary::Entry SystemLibrary::entry(void* library, const char* symbol)
{
    if (!library)
        return nullptr;
    return reinterpret_cast<Entry>(dlsym(library, symbol));
}
