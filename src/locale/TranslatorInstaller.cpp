#include "TranslatorInstaller.h"

#include "LanguageEntry.h"
#include "ModuleCatalogues.h"
#include "common/HeapText.h"
#include "common/ProcessLifetime.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

QString TranslatorInstaller::hostMessagesFolder()
{
    return QCoreApplication::applicationDirPath() + QDir::separator() + QStringLiteral("messages");
}

TranslatorInstaller::TranslatorInstaller(const QString& messagesFolder)
    : m_messagesFolder(messagesFolder)
{}

QString TranslatorInstaller::folderFor(const LanguageEntry& language) const
{
    const QString own = QDir::toNativeSeparators(m_messagesFolder + language.folder.toQString());
    if (QDir(own).exists())
        return own;
    return QDir(m_messagesFolder).exists() ? m_messagesFolder : QString();
}

void TranslatorInstaller::install(const LanguageEntry& language) const
{
    const QString folder = folderFor(language);
    if (folder.isEmpty())
        return;
    std::array<QTranslator*, kModuleCatalogues.size()> translators{};
    for (std::size_t i = 0; i < kModuleCatalogues.size(); ++i) {
        translators[i] = keptForProcess(new QTranslator());
        translators[i]->load(heapText(kModuleCatalogues[i]), folder, QString(), QString());
    }
    // Taking out what was never installed changes nothing: translators of an earlier call
    // stay installed, below the new ones.
    for (QTranslator* translator : translators)
        QCoreApplication::removeTranslator(translator);
    for (QTranslator* translator : translators)
        QCoreApplication::installTranslator(translator);
}
