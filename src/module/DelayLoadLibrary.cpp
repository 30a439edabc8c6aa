#include "DelayLoadLibrary.h"

#include <map>
#include <memory>

DelayLoadLibrary& DelayLoadLibrary::companion(const char* baseName)
{
    // One per library for the life of the module; the libraries themselves stay loaded.
    static std::map<std::string, std::unique_ptr<DelayLoadLibrary>> imports;
    auto& import = imports[baseName];
    if (!import)
        import.reset(new DelayLoadLibrary(baseName));
    return *import;
}

DelayLoadLibrary::DelayLoadLibrary(const char* baseName) : m_fileName(fileName(baseName)) {}

std::string DelayLoadLibrary::fileName(const char* baseName)
{
#if defined(_WIN32)
    return std::string(baseName) + ".dll";
#else
    return "lib" + std::string(baseName) + ".so";
#endif
}

bool DelayLoadLibrary::load()
{
    if (!m_handle)
        m_handle = SystemLibrary::load(m_fileName);
    return m_handle != nullptr;
}
