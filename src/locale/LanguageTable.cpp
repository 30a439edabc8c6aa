#include "LanguageTable.h"

#include "common/ProcessLifetime.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

#include <CFxSystemServices.h>

#include <array>

namespace {
// The catalogues whose translations the module installs, in the order in which they are
// installed: the module's own texts (context "QObject") are in "GCode".
constexpr std::array<const char*, 4> kCatalogues = {
    "GCode", "recentdocumentbrowser", "QuillonOmniplaneConnector", "QNTForgeportConnector"};

QString messagesFolder()
{
    return QCoreApplication::applicationDirPath() + QDir::separator() + QStringLiteral("messages");
}

// The language's own folder; the base folder when it has none; empty when neither exists.
QString translationFolder(const QString& base, const LanguageEntry& entry)
{
    const QString language = QDir::toNativeSeparators(base + entry.folder.toQString());
    if (QDir(language).exists())
        return language;
    return QDir(base).exists() ? base : QString();
}
} // namespace

LanguageTable::LanguageTable() : m_default(2, QObject::tr("English"), QLocale::English, true, {})
{
    add(0, "System", QLocale::C, true, "");
    add(1, "German", QLocale::German, true, "german");
    add(2, "English", QLocale::English, true, "english");
    add(3, "Turkish", QLocale::Turkish, true, "turkish");
    add(4, "Hungarian", QLocale::Hungarian, false, "hungarian");
    add(5, "Polish", QLocale::Polish, true, "polish");
    add(6, "Japanese", QLocale::Japanese, true, "japanese");
    add(7, "French", QLocale::French, true, "french");
    // Both texts are what the host's own table has always held, colons included: the
    // translations folder on disk and the web pages' path carry them exactly so.
    add(8, "QObject::traditional Chinese", QLocale::Chinese, true, "chinese/QObject::traditional");
    add(9, "Simplified Chinese", QLocale::Chinese, true, "chinese/simplified");
    add(10, "Italian", QLocale::Italian, true, "italian");
    add(11, "Spanish", QLocale::Spanish, true, "spanish");
    add(12, "Greek", QLocale::Greek, false, "greek");
    add(13, "Korean", QLocale::Korean, true, "korean");
    add(14, "Vietnamese", QLocale::Vietnamese, false, "vietnamese");
    add(15, "Catalan", QLocale::Catalan, false, "catalan");
    add(16, "Thai", QLocale::Thai, false, "thai");
    add(17, "Dutch", QLocale::Dutch, false, "dutch");
    add(18, "Russian", QLocale::Russian, true, "russian");
    add(19, "Portuguese", QLocale::Portuguese, true, "portuguese");
    add(20, "Czech", QLocale::Czech, true, "czech");
}

void LanguageTable::add(int id, const char* displayName, int qtLanguage, bool flag,
                        const char* folderName)
{
    m_entries.push_back(std::make_unique<LanguageEntry>(id, QObject::tr(displayName), qtLanguage,
                                                        flag, QString::fromUtf8(folderName)));
    const LanguageEntry* entry = m_entries.back().get();
    // A later entry of the same Qt language replaces the earlier one (simplified Chinese
    // wins over traditional Chinese).
    m_byQtLanguage[qtLanguage] = entry;
    m_byId[id] = entry;
}

const LanguageEntry& LanguageTable::entryById(int id) const
{
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? m_default : *found->second;
}

const LanguageEntry& LanguageTable::entryForQtLanguage(int language) const
{
    if (isTraditionalChineseSystem())
        return entryById(8);
    if (!isSimplifiedChineseSystem()) {
        const auto found = m_byQtLanguage.find(language);
        return found == m_byQtLanguage.end() ? m_default : *found->second;
    }
    return entryById(9);
}

const LanguageEntry& LanguageTable::currentEntry() const
{
    int id = GetFxSystemServices()->GetCurrentLanguageId();
    if (id == 0)
        id = systemLanguageId();
    return entryById(id);
}

int LanguageTable::systemLanguageId() const
{
    return entryForQtLanguage(QLocale::system().language()).id;
}

bool LanguageTable::isSimplifiedChineseSystem()
{
    const QLocale system = QLocale::system();
    return system.language() == QLocale::Chinese && system.country() == QLocale::China;
}

bool LanguageTable::isTraditionalChineseSystem()
{
    const QLocale system = QLocale::system();
    return system.language() == QLocale::Chinese && system.country() != QLocale::China;
}

void LanguageTable::loadTranslators(int requestedId) const
{
    const QString base = messagesFolder();
    if (requestedId == 0) {
        // Asked for the system's language: the host's setting governs all the same.
        entryById(systemLanguageId());
    }
    const LanguageEntry& entry = currentEntry();
    QLocale::setDefault(
        QLocale(static_cast<QLocale::Language>(entry.qtLanguage), QLocale::AnyCountry));
    const QString folder = translationFolder(base, entry);
    if (folder.isEmpty())
        return;
    std::array<QTranslator*, kCatalogues.size()> translators{};
    for (std::size_t i = 0; i < kCatalogues.size(); ++i) {
        translators[i] = keptForProcess(new QTranslator());
        // A catalogue that is not there leaves an empty translator, installed all the same.
        translators[i]->load(QString::fromLatin1(kCatalogues[i]), folder, QString(), QString());
    }
    // Taking out what was never installed changes nothing: translators of an earlier call
    // stay installed, below the new ones.
    for (QTranslator* translator : translators)
        QCoreApplication::removeTranslator(translator);
    for (QTranslator* translator : translators)
        QCoreApplication::installTranslator(translator);
}
