#include "TranslationObserver.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QReadLocker>
#include <QTranslator>
#include <QtCore/private/qcoreapplication_p.h>

#include <OdEventLog.h>

#include <algorithm>

TranslationObserver::TranslationObserver() : m_locale(QLocale().name())
{
    for (QTranslator* translator : installedTranslators())
        m_known.insert(translator, translator);
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
    // Only the translators installed now are remembered, so that a look costs as much as the
    // translators installed, however many came and went before.
    QList<QTranslator*> installed;
    QHash<const QTranslator*, QPointer<QTranslator>> known;
    for (QTranslator* translator : installedTranslators()) {
        if (!isKnown(translator))
            installed.append(translator);
        known.insert(translator, translator);
    }
    m_known.swap(known);
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
    return known != m_known.constEnd() && known->data() == translator;
}

QList<QTranslator*> TranslationObserver::installedTranslators()
{
    // Qt offers no public way to list the installed translators; its own list is the truth.
    auto* application =
        static_cast<QCoreApplicationPrivate*>(QObjectPrivate::get(QCoreApplication::instance()));
    QReadLocker locker(&application->translateMutex);
    QList<QTranslator*> translators = application->translators;
    // Qt keeps the latest installed first.
    std::reverse(translators.begin(), translators.end());
    return translators;
}
