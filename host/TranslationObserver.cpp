#include "TranslationObserver.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QReadLocker>
#include <QSet>
#include <QTranslator>
#include <QtCore/private/qcoreapplication_p.h>

#include <OdEventLog.h>

TranslationObserver::TranslationObserver() : m_locale(QLocale().name())
{
    m_seen = qtTranslators();
    for (QTranslator* translator : qAsConst(m_seen))
        m_known.insert(translator, {translator, translator->filePath()});
    QCoreApplication::instance()->installEventFilter(this);
}

void TranslationObserver::statementEnded()
{
    look();
    m_localeReportedInStatement = false;
}

bool TranslationObserver::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
        look();
    return QObject::eventFilter(watched, event);
}

void TranslationObserver::look()
{
    const Changes changed = changes();
    for (const QString& file : changed.removed)
        OdEventLog::report(QStringLiteral("translator-removed"), {{QStringLiteral("file"), file}});
    const QList<QTranslator*>& installed = changed.installed;
    const QString locale = QLocale().name();
    if (locale != m_locale || (!installed.isEmpty() && !m_localeReportedInStatement)) {
        m_locale = locale;
        m_localeReportedInStatement = true;
        OdEventLog::report(QStringLiteral("default-locale"), {{QStringLiteral("name"), locale}});
    }
    for (QTranslator* translator : installed) {
        OdEventLog::report(QStringLiteral("translator-installed"),
                           {{QStringLiteral("file"), translator->filePath()}});
    }
}

bool TranslationObserver::isKnown(const QTranslator* translator) const
{
    // A translator deleted since has left a null pointer behind: a new one at its address is
    // not known.
    const auto known = m_known.constFind(translator);
    return known != m_known.constEnd() && known->translator.data() == translator;
}

TranslationObserver::Changes TranslationObserver::changes()
{
    // Translators that stay installed for the life of the process pile up, and the host looks
    // after every statement: a list that Qt has not changed since the last look still shares
    // its data with the copy kept then, and is passed over without going through it.
    const QList<QTranslator*> current = qtTranslators();
    if (current.isSharedWith(m_seen))
        return {};
    Changes changed;
    changed.removed = removedFrom(current);
    m_seen = current;
    ++m_walks;
    // Only the translators installed now are remembered, so that a walk costs as much as the
    // translators installed, however many came and went before. Qt keeps the latest installed
    // first.
    QHash<const QTranslator*, KnownTranslator> known;
    for (auto translator = current.crbegin(); translator != current.crend(); ++translator) {
        if (!isKnown(*translator))
            changed.installed.append(*translator);
        known.insert(*translator, {*translator, (*translator)->filePath()});
    }
    m_known.swap(known);
    return changed;
}

QStringList TranslationObserver::removedFrom(const QList<QTranslator*>& current) const
{
    // Those of the last look that Qt no longer lists, and those deleted since, even when a new
    // translator has been made at the same address. The addresses of the last look are only
    // compared, never followed.
    const QSet<QTranslator*> now(current.cbegin(), current.cend());
    QStringList removed;
    for (auto seen = m_seen.crbegin(); seen != m_seen.crend(); ++seen) {
        const KnownTranslator known = m_known.value(*seen);
        if (!now.contains(*seen) || known.translator.isNull())
            removed << known.file;
    }
    return removed;
}

QList<QTranslator*> TranslationObserver::qtTranslators()
{
    // Qt offers no public way to list the installed translators; its own list is the truth.
    auto* application =
        static_cast<QCoreApplicationPrivate*>(QObjectPrivate::get(QCoreApplication::instance()));
    QReadLocker locker(&application->translateMutex);
    return application->translators;
}
