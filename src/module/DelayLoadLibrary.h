#pragma once

#include "SystemLibrary.h"

#include <string>

// A companion library reached the way a delay-loaded import is: nothing happens at module
// load; the library is loaded by its file name through the system's own search when it is
// first needed. A library that is not found yields no entry points, and the step that needed it
// does nothing. The library is never unloaded.
class DelayLoadLibrary
{
public:
    // The module's one import of the companion library `baseName` ("TarnTaskPane").
    static DelayLoadLibrary& companion(const char* baseName);

    // Loads the library if it is not loaded yet; false when it cannot be found or loaded.
    bool load();

    template <class Function>
    Function resolve(const char* symbol)
    {
        return load() ? reinterpret_cast<Function>(SystemLibrary::entry(m_handle, symbol))
                      : nullptr;
    }

private:
    explicit DelayLoadLibrary(const char* baseName);

    // The one name the library has on this system: "TarnTaskPane.dll", "libTarnTaskPane.so".
    static std::string fileName(const char* baseName);

    std::string m_fileName;
    void* m_handle = nullptr;
};
