#include "LanguageEntry.h"

#include <QDir>

LanguageEntry::LanguageEntry(int id, const CFxString& displayName, int qtLanguage,
                             bool hostListMark, const QString& folderName)
    : id(id), displayName(displayName), qtLanguage(qtLanguage), hostListMark(hostListMark),
      folder(QDir::separator() + folderName)
{}
