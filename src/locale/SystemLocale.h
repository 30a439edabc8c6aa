#pragma once

#include <QLocale>

class LanguageTable;
struct LanguageEntry;

// The operating system's locale, as the host's "System" language setting reads it. Chinese is
// told apart by the country alone: China is simplified Chinese, any other country traditional
// Chinese, whatever the locale's script says.
class SystemLocale
{
public:
    explicit SystemLocale(const QLocale& locale = QLocale::system());

    bool isSimplifiedChinese() const;
    bool isTraditionalChinese() const;
    // The table's entry for the locale's language; one the table lacks is the default entry,
    // and the "C" locale is the "System" entry itself.
    const LanguageEntry& entryIn(const LanguageTable& table) const;

private:
    QLocale m_locale;
};
