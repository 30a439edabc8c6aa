#pragma once

#include "LanguageEntry.h"

#include <map>
#include <memory>
#include <vector>

// The user-interface languages that the host offers, found by the host's language id or by Qt
// language. Only the table: which entry the host's setting or the operating system stands for
// is decided by currentLanguage() and SystemLocale. Cheap to build: each user makes a fresh
// one on its stack, so the names are translated as the translators installed now have them.
class LanguageTable
{
public:
    static constexpr int kSystemId = 0;
    static constexpr int kTraditionalChineseId = 8;
    static constexpr int kSimplifiedChineseId = 9;

    LanguageTable();
    LanguageTable(const LanguageTable&) = delete;
    LanguageTable& operator=(const LanguageTable&) = delete;

    // English with an empty folder name: the answer whenever a look-up finds nothing.
    const LanguageEntry& defaultEntry() const { return m_default; }
    const LanguageEntry& entryById(int id) const;
    // Of two entries of one Qt language the later one is found: simplified Chinese, never
    // traditional Chinese, which only the operating system's country tells apart.
    const LanguageEntry& entryByQtLanguage(int language) const;

private:
    LanguageEntry m_default;
    std::vector<std::unique_ptr<LanguageEntry>> m_entries;
    std::map<int, const LanguageEntry*> m_byQtLanguage;
    std::map<int, const LanguageEntry*> m_byId;
};
