#pragma once

#include <QLibrary>
#include <QString>

// A companion library reached the way a delay-loaded import is: nothing happens at module
// load; the library is looked for in the host's companion folder when one of its entry
// points is first needed. A library that is not there yields no entry points, and the step
// that needed it does nothing. The library is never unloaded.
class DelayLoadLibrary
{
public:
    explicit DelayLoadLibrary(const char* baseName);

    bool load();

    template <class Function>
    Function resolve(const char* symbol)
    {
        return load() ? reinterpret_cast<Function>(m_library.resolve(symbol)) : nullptr;
    }

private:
    QString m_baseName;
    QLibrary m_library;
};
