#include "SystemLocale.h"

#include "LanguageTable.h"

SystemLocale::SystemLocale(const QLocale& locale) : m_locale(locale) {}

bool SystemLocale::isSimplifiedChinese() const
{
    return m_locale.language() == QLocale::Chinese && m_locale.country() == QLocale::China;
}

bool SystemLocale::isTraditionalChinese() const
{
    return m_locale.language() == QLocale::Chinese && m_locale.country() != QLocale::China;
}

const LanguageEntry& SystemLocale::entryIn(const LanguageTable& table) const
{
    if (isTraditionalChinese())
        return table.entryById(LanguageTable::kTraditionalChineseId);
    if (isSimplifiedChinese())
        return table.entryById(LanguageTable::kSimplifiedChineseId);
    return table.entryByQtLanguage(m_locale.language());
}
