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
        m_known.append(translator);
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
    QList<QTranslator*> installed = installedTranslators();
    installed.erase(std::remove_if(installed.begin(), installed.end(),
                                   [this](const QTranslator* t) { return isKnown(t); }),
                    installed.end());
    const QString locale = QLocale().name();
    if (locale != m_locale || (!installed.isEmpty() && !m_localeReportedInStatement)) {
        m_locale = locale;
        m_localeReportedInStatement = true;
        OdEventLog::report(QStringLiteral("default-locale"), {{QStringLiteral("name"), locale}});
    }
    for (QTranslator* translator : installed) {
        m_known.append(translator);
        OdEventLog::report(QStringLiteral("translator-installed"),
                           {{QStringLiteral("file"), translator->filePath()}});
    }
}

bool TranslationObserver::isKnown(const QTranslator* translator) const
{
    return std::any_of(
        m_known.begin(), m_known.end(),
        [translator](const QPointer<QTranslator>& known) { return known.data() == translator; });
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
