#pragma once

#include <string>

// The operating system's loader, called from the module's own code: on Windows LoadLibraryW
// and GetProcAddress, elsewhere dlopen and dlsym. A library is named by its file name alone and
// found by the system's own search for this module (never by a path the module builds), and a
// handle is the system's own: the module's HMODULE or dlopen handle, or a platform module's
// system data. Nothing here closes a handle.
class SystemLibrary
{
public:
    // What an entry point is called through, before it is cast to its own type.
    using Entry = void (*)();

    // Loads the library `fileName` ("TarnTaskPane.dll", "libTarnTaskPane.so"); null when the
    // system's search does not find it or it cannot be loaded.
    static void* load(const std::string& fileName);
    // The entry point `symbol` of the loaded library `library`; null when it has none.
    static Entry entry(void* library, const char* symbol);
};
