#include "LanguageEntry.h"

#include <QDir>

LanguageEntry::LanguageEntry(int id, const CFxString& displayName, int qtLanguage, bool flag,
                             const QString& folderName)
    : id(id), displayName(displayName), qtLanguage(qtLanguage), flag(flag),
      folder(QDir::separator() + folderName)
{}
