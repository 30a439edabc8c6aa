#include "TranslatorLoader.h"

#include "CurrentLanguage.h"
#include "LanguageTable.h"
#include "SystemLocale.h"
#include "TranslatorInstaller.h"

#include <QLocale>

namespace {
// Set before any folder is looked at, whether translations are found or not.
void makeDefaultLocale(const LanguageEntry& language)
{
    QLocale::setDefault(
        QLocale(static_cast<QLocale::Language>(language.qtLanguage), QLocale::AnyCountry));
}
} // namespace

void TranslatorLoader::load(int requestedId) const
{
    const TranslatorInstaller installer(TranslatorInstaller::hostMessagesFolder());
    const LanguageTable table;
    const SystemLocale system;
    if (requestedId == LanguageTable::kSystemId) {
        // The system's language is looked up and then not used: the host's setting, which
        // resolves "System" itself, decides all the same.
        static_cast<void>(system.entryIn(table));
    }
    const LanguageEntry& language = currentLanguage(table, system);
    makeDefaultLocale(language);
    installer.install(language);
}
