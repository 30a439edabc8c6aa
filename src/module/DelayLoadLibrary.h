#pragma once

#include <QLibrary>
#include <QString>

// A companion library reached the way a delay-loaded import is: nothing happens at module
// load; the library is looked for in the host's companion folder when it is first needed. A
// library that is not there yields no entry points, and the step that needed it does nothing.
// The library is never unloaded.
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
        return load() ? reinterpret_cast<Function>(m_library.resolve(symbol)) : nullptr;
    }

private:
    explicit DelayLoadLibrary(QString baseName);

    QString fileName() const;

    QString m_baseName;
    QLibrary m_library;
};
