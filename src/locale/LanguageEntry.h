#pragma once

#include <CFxString.h>

// One user-interface language of the host: its id (the value of the host's language setting,
// 0 meaning "System"), its name, its Qt language (a QLocale::Language value) and the folder
// that holds its translations, written as the native directory separator followed by the
// folder's name, so that it can be joined to a base folder as it stands.
struct LanguageEntry
{
    LanguageEntry(int id, const CFxString& displayName, int qtLanguage, bool flag,
                  const QString& folderName);

    int id;
    CFxString displayName;
    int qtLanguage;
    // The yes-or-no mark that the host's own language list carries beside each language. Its
    // meaning is the host's; the module copies it so that the table matches the host's list,
    // and reads it nowhere.
    bool flag;
    CFxString folder;
};
