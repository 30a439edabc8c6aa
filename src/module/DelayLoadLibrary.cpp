#include "DelayLoadLibrary.h"

#include "common/HeapText.h"

#include <QDir>

#include <CFxSystemServices.h>

#include <map>
#include <memory>
#include <utility>

DelayLoadLibrary& DelayLoadLibrary::companion(const char* baseName)
{
    // One per library for the life of the module; the libraries themselves stay loaded.
    static std::map<QString, std::unique_ptr<DelayLoadLibrary>> imports;
    // QLibrary keeps the names of the libraries it loaded.
    const QString name = heapText(baseName);
    auto& import = imports[name];
    if (!import)
        import.reset(new DelayLoadLibrary(name));
    return *import;
}

DelayLoadLibrary::DelayLoadLibrary(QString baseName) : m_baseName(std::move(baseName)) {}

QString DelayLoadLibrary::fileName() const
{
    // The one name the library has on this system. Given the base name alone, QLibrary would
    // try each prefix and suffix it knows in turn, each a failed load before the right one.
#ifdef Q_OS_WIN
    return m_baseName + QStringLiteral(".dll");
#else
    return QStringLiteral("lib") + m_baseName + QStringLiteral(".so");
#endif
}

bool DelayLoadLibrary::load()
{
    if (m_library.isLoaded())
        return true;
    m_library.setFileName(QDir(GetFxSystemServices()->GetCompanionFolder()).filePath(fileName()));
    return m_library.load();
}
