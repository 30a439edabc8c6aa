#pragma once

#include "LanguageEntry.h"

#include <QLocale>

#include <map>
#include <memory>
#include <vector>

// The user-interface languages that the host offers, and the rules that turn the host's
// language setting and the operating system's locale into one of them: "System" is the
// system's language, and Chinese is told apart by the system's country alone (China is
// simplified Chinese, any other country traditional Chinese, whatever the locale's script
// says). Cheap to build: each user makes a fresh one on its stack, so the names are translated
// as the translators installed at that moment have them, and the host's setting is read anew.
class LanguageTable
{
public:
    static constexpr int kSystemId = 0;
    static constexpr int kTraditionalChineseId = 8;
    static constexpr int kSimplifiedChineseId = 9;

    // The operating system's locale is QLocale::system().
    LanguageTable();
    // The same table, with `systemLocale` taken for the operating system's locale: the rules
    // can then be tried on any locale without changing the process's.
    explicit LanguageTable(const QLocale& systemLocale);
    LanguageTable(const LanguageTable&) = delete;
    LanguageTable& operator=(const LanguageTable&) = delete;

    // English with an empty folder name: the answer whenever a look-up finds nothing.
    const LanguageEntry& defaultEntry() const { return m_default; }
    const LanguageEntry& entryById(int id) const;
    // On a Chinese system the system's country decides, whatever `language` is; otherwise the
    // entry of `language` (of the two Chinese entries, the later: simplified Chinese).
    const LanguageEntry& entryForQtLanguage(int language) const;
    bool isSimplifiedChineseSystem() const;
    bool isTraditionalChineseSystem() const;
    // The id of the operating system's language; a language the table lacks gives the default
    // entry's, and the "C" locale the "System" entry's own.
    int systemLanguageId() const;
    // The entry of the host's current setting, read afresh; "System" is the operating system's
    // language, and an id the table lacks is the default entry.
    const LanguageEntry& currentEntry() const;
    // Makes the language of the host's setting the process's default locale and installs the
    // module's translators for it from the host's messages folder, for the life of the process.
    // `requestedId` 0 asks for the system's language, any other value for the host's setting;
    // the host's setting governs in either case.
    void loadTranslators(int requestedId) const;

private:
    void add(const LanguageEntry& entry);

    LanguageEntry m_default;
    std::vector<std::unique_ptr<LanguageEntry>> m_entries;
    // The entries (which the table owns in m_entries) by Qt language, where of two entries of
    // one language the later one stands, and by the host's id.
    std::map<int, const LanguageEntry*> byQtLanguage;
    std::map<int, const LanguageEntry*> byId;
    QLocale m_systemLocale;
};
