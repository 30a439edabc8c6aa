#include "LanguageTable.h"

#include <QLocale>
#include <QObject>

namespace {
struct Language
{
    int id;
    const char* displayName;
    QLocale::Language qtLanguage;
    bool hostListMark;
    const char* folderName;
};

// The host's languages, in the host's order. The names are translated in the context the
// module's texts are looked up in ("QObject"), which marks them for extraction here.
constexpr Language kLanguages[] = {
    {0, QT_TRANSLATE_NOOP("QObject", "System"), QLocale::C, true, ""},
    {1, QT_TRANSLATE_NOOP("QObject", "German"), QLocale::German, true, "german"},
    {2, QT_TRANSLATE_NOOP("QObject", "English"), QLocale::English, true, "english"},
    {3, QT_TRANSLATE_NOOP("QObject", "Turkish"), QLocale::Turkish, true, "turkish"},
    {4, QT_TRANSLATE_NOOP("QObject", "Hungarian"), QLocale::Hungarian, false, "hungarian"},
    {5, QT_TRANSLATE_NOOP("QObject", "Polish"), QLocale::Polish, true, "polish"},
    {6, QT_TRANSLATE_NOOP("QObject", "Japanese"), QLocale::Japanese, true, "japanese"},
    {7, QT_TRANSLATE_NOOP("QObject", "French"), QLocale::French, true, "french"},
    // Both texts are what the host's own table holds, colons included: the translations
    // folder on disk and the web pages' path carry them exactly so, and a "fixed" name would
    // find neither.
    {LanguageTable::kTraditionalChineseId,
     QT_TRANSLATE_NOOP("QObject", "QObject::traditional Chinese"), QLocale::Chinese, true,
     "chinese/QObject::traditional"},
    {LanguageTable::kSimplifiedChineseId, QT_TRANSLATE_NOOP("QObject", "Simplified Chinese"),
     QLocale::Chinese, true, "chinese/simplified"},
    {10, QT_TRANSLATE_NOOP("QObject", "Italian"), QLocale::Italian, true, "italian"},
    {11, QT_TRANSLATE_NOOP("QObject", "Spanish"), QLocale::Spanish, true, "spanish"},
    {12, QT_TRANSLATE_NOOP("QObject", "Greek"), QLocale::Greek, false, "greek"},
    {13, QT_TRANSLATE_NOOP("QObject", "Korean"), QLocale::Korean, true, "korean"},
    {14, QT_TRANSLATE_NOOP("QObject", "Vietnamese"), QLocale::Vietnamese, false, "vietnamese"},
    {15, QT_TRANSLATE_NOOP("QObject", "Catalan"), QLocale::Catalan, false, "catalan"},
    {16, QT_TRANSLATE_NOOP("QObject", "Thai"), QLocale::Thai, false, "thai"},
    {17, QT_TRANSLATE_NOOP("QObject", "Dutch"), QLocale::Dutch, false, "dutch"},
    {18, QT_TRANSLATE_NOOP("QObject", "Russian"), QLocale::Russian, true, "russian"},
    {19, QT_TRANSLATE_NOOP("QObject", "Portuguese"), QLocale::Portuguese, true, "portuguese"},
    {20, QT_TRANSLATE_NOOP("QObject", "Czech"), QLocale::Czech, true, "czech"},
};
} // namespace

LanguageTable::LanguageTable() : m_default(2, QObject::tr("English"), QLocale::English, true, {})
{
    for (const Language& language : kLanguages) {
        m_entries.push_back(std::make_unique<LanguageEntry>(
            language.id, QObject::tr(language.displayName), language.qtLanguage,
            language.hostListMark, QString::fromUtf8(language.folderName)));
        const LanguageEntry* entry = m_entries.back().get();
        // A later entry of the same Qt language replaces the earlier one.
        m_byQtLanguage[language.qtLanguage] = entry;
        m_byId[language.id] = entry;
    }
}

const LanguageEntry& LanguageTable::entryById(int id) const
{
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? m_default : *found->second;
}

const LanguageEntry& LanguageTable::entryByQtLanguage(int language) const
{
    const auto found = m_byQtLanguage.find(language);
    return found == m_byQtLanguage.end() ? m_default : *found->second;
}
