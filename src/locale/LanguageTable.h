#pragma once

#include "LanguageEntry.h"

#include <map>
#include <memory>
#include <vector>

// The user-interface languages that the host offers, and the rules that turn the host's
// language setting (with "System" resolved through the operating system's locale) into one
// of them. Cheap to build: each user makes a fresh one on its stack, so the host's setting
// is always read as it is now.
class LanguageTable
{
public:
    LanguageTable();
    LanguageTable(const LanguageTable&) = delete;
    LanguageTable& operator=(const LanguageTable&) = delete;

    // English with an empty folder name: the answer whenever a look-up finds nothing.
    const LanguageEntry& defaultEntry() const { return m_default; }
    const LanguageEntry& entryById(int id) const;
    // The entry for a Qt language; a Chinese operating system decides between the two
    // Chinese entries by its country, whatever language is asked for.
    const LanguageEntry& entryForQtLanguage(int language) const;
    // The language of the host's current setting, "System" resolved.
    const LanguageEntry& currentEntry() const;
    int systemLanguageId() const;

    static bool isSimplifiedChineseSystem();
    static bool isTraditionalChineseSystem();

    // Makes the current language the process's default locale and installs the translators
    // of the module's catalogues from the host's "messages" folder. The translators stay
    // installed for the life of the process; a second call installs a second set.
    void loadTranslators(int requestedId) const;

private:
    void add(int id, const char* displayName, int qtLanguage, bool flag, const char* folderName);

    LanguageEntry m_default;
    std::vector<std::unique_ptr<LanguageEntry>> m_entries;
    std::map<int, const LanguageEntry*> m_byQtLanguage;
    std::map<int, const LanguageEntry*> m_byId;
};
