#include "DelayLoadLibrary.h"

#include <QDir>

#include <CFxSystemServices.h>

DelayLoadLibrary::DelayLoadLibrary(const char* baseName) : m_baseName(QString::fromLatin1(baseName))
{}

bool DelayLoadLibrary::load()
{
    if (m_library.isLoaded())
        return true;
    m_library.setFileName(QDir(GetFxSystemServices()->GetCompanionFolder()).filePath(m_baseName));
    return m_library.load();
}
