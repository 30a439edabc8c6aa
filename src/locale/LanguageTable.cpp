#include "LanguageTable.h"

#include "TranslatorInstaller.h"

#include <QObject>

#include <CFxSystemServices.h>

namespace {
struct Language
{
    int id;
    const char* displayName;
    QLocale::Language qtLanguage;
    bool flag;
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
    // find neither (docs/lifecycle.md, row "Language folders").
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

LanguageTable::LanguageTable() : LanguageTable(QLocale::system()) {}

LanguageTable::LanguageTable(const QLocale& systemLocale)
    : m_default(2, QObject::tr("English"), QLocale::English, true, {}), m_systemLocale(systemLocale)
{
    for (const Language& language : kLanguages)
        add(LanguageEntry(language.id, QObject::tr(language.displayName), language.qtLanguage,
                          language.flag, QString::fromUtf8(language.folderName)));
}

void LanguageTable::add(const LanguageEntry& entry)
{
    m_entries.push_back(std::make_unique<LanguageEntry>(entry));
    const LanguageEntry* added = m_entries.back().get();
    // A later entry of the same Qt language replaces the earlier one.
    byQtLanguage[added->qtLanguage] = added;
    byId[added->id] = added;
}

const LanguageEntry& LanguageTable::entryById(int id) const
{
    const auto found = byId.find(id);
    return found == byId.end() ? m_default : *found->second;
}

const LanguageEntry& LanguageTable::entryForQtLanguage(int language) const
{
    if (isTraditionalChineseSystem())
        return entryById(kTraditionalChineseId);
    if (!isSimplifiedChineseSystem()) {
        const auto found = byQtLanguage.find(language);
        return found == byQtLanguage.end() ? m_default : *found->second;
    }
    return entryById(kSimplifiedChineseId);
}

bool LanguageTable::isSimplifiedChineseSystem() const
{
    return m_systemLocale.language() == QLocale::Chinese &&
           m_systemLocale.country() == QLocale::China;
}

bool LanguageTable::isTraditionalChineseSystem() const
{
    return m_systemLocale.language() == QLocale::Chinese &&
           m_systemLocale.country() != QLocale::China;
}

int LanguageTable::systemLanguageId() const
{
    return entryForQtLanguage(m_systemLocale.language()).id;
}

const LanguageEntry& LanguageTable::currentEntry() const
{
    int id = GetFxSystemServices()->GetCurrentLanguageId();
    if (id == kSystemId)
        id = systemLanguageId();
    return entryById(id);
}

void LanguageTable::loadTranslators(int requestedId) const
{
    const TranslatorInstaller installer(TranslatorInstaller::hostMessagesFolder());
    if (requestedId == kSystemId) {
        // The system's language is looked up and then not used: the host's setting, which
        // resolves "System" itself, decides all the same.
        static_cast<void>(entryById(systemLanguageId()));
    }
    const LanguageEntry& entry = currentEntry();
    // Set before any folder is looked at, whether translations are found or not.
    QLocale::setDefault(
        QLocale(static_cast<QLocale::Language>(entry.qtLanguage), QLocale::AnyCountry));
    installer.install(entry);
}
