#pragma once

#include <QString>

struct LanguageEntry;

// Installs a translator for each of the module's catalogues, read from a language's folder
// below the messages folder. The translators are never removed nor freed, and a second call
// installs a second set above the first: docs/lifecycle.md, row "Translators".
class TranslatorInstaller
{
public:
    // The host's "messages" folder, beside the program.
    static QString hostMessagesFolder();

    explicit TranslatorInstaller(const QString& messagesFolder);

    // The language's own folder, else the messages folder itself; nothing is installed when
    // neither exists. A catalogue missing there gives an empty translator, installed all the
    // same.
    void install(const LanguageEntry& language) const;

private:
    QString folderFor(const LanguageEntry& language) const;

    QString m_messagesFolder;
};
