#pragma once

#include "SystemLibrary.h"

#include <string>
#include <type_traits>
#include <utility>

// A companion library reached the way a delay-loaded import is: nothing happens at module
// load; the library is loaded by its file name through the system's own search when it is
// first needed. A library that is not found yields no entry points, and the step that needed it
// does nothing. The library is never unloaded: docs/lifecycle.md, row "Companion libraries".
class DelayLoadLibrary
{
public:
    // The module's one import of the companion library `baseName` ("TarnTaskPane").
    static DelayLoadLibrary& companion(const char* baseName);

    // Calls the entry point `symbol`, of type `Function`, of the companion library `baseName`
    // with `arguments`. Without the library or the entry point nothing is called, and a
    // function that returns something returns its empty value (false).
    template <class Function, class... Arguments>
    static auto call(const char* baseName, const char* symbol, Arguments... arguments)
    {
        using Result = decltype(std::declval<Function>()(arguments...));
        const Function entry = companion(baseName).resolve<Function>(symbol);
        if constexpr (std::is_void_v<Result>) {
            if (entry)
                entry(arguments...);
        } else {
            return entry ? entry(arguments...) : Result{};
        }
    }

    // Loads the library if it is not loaded yet; false when it cannot be found or loaded.
    bool load();

private:
    explicit DelayLoadLibrary(const char* baseName);

    template <class Function>
    Function resolve(const char* symbol)
    {
        return load() ? reinterpret_cast<Function>(SystemLibrary::entry(m_handle, symbol))
                      : nullptr;
    }

    // The one name the library has on this system: "TarnTaskPane.dll", "libTarnTaskPane.so".
    static std::string fileName(const char* baseName);

    std::string m_fileName;
    void* m_handle = nullptr;
};
