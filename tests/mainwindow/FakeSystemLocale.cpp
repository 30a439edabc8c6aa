#include "FakeSystemLocale.h"

FakeSystemLocale::FakeSystemLocale(const QString& name) : m_locale(name) {}

QVariant FakeSystemLocale::query(QueryType type, QVariant) const
{
    switch (type) {
    case LanguageId:
        return m_locale.language();
    case CountryId:
        return m_locale.country();
    case ScriptId:
        return m_locale.script();
    default:
        return QVariant();
    }
}

QLocale FakeSystemLocale::fallbackUiLocale() const
{
    return m_locale;
}
