#include "SystemLibrary.h"

#include <windows.h>

void* SystemLibrary::load(const std::string& fileName)
{
    // The companions' file names are plain ASCII: widened character by character.
    const std::wstring wideName(fileName.begin(), fileName.end());
    return LoadLibraryW(wideName.c_str());
}

SystemLibrary::Entry SystemLibrary::entry(void* library, const char* symbol)
{
    if (!library)
        return nullptr;
    return reinterpret_cast<Entry>(GetProcAddress(static_cast<HMODULE>(library), symbol));
}
