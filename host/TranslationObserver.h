#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class QTranslator;

// Reports how the application's language changes, as a user would notice it: each translator
// taken away (translator-removed), a new default locale (default-locale) and each translator
// installed (translator-installed), in the order of installation. Qt announces a translator
// only when it holds translations, so the installed translators are also looked at after each
// statement of the host; and because a default locale can be set anew to the value it had, it
// is reported whenever a statement installs translators.
class TranslationObserver : public QObject
{
    Q_OBJECT

public:
    // Takes the present state as known: nothing that came before is reported.
    TranslationObserver();

    // Reports what changed since the last look; the next look belongs to a new statement.
    void statementEnded();
    // How many translators the observer remembers: those installed at the last look.
    int remembered() const { return m_known.size(); }
    // How many looks went through the installed translators one by one: only those after Qt
    // changed its list of them.
    int walks() const { return m_walks; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A translator installed at the last look, and the file it had loaded then: once it is
    // deleted, the file can no longer be asked.
    struct KnownTranslator
    {
        QPointer<QTranslator> translator;
        QString file;
    };
    // What changed since the last look: the files of the translators taken away, in the order
    // of their installation, and the translators installed.
    struct Changes
    {
        QStringList removed;
        QList<QTranslator*> installed;
    };

    void look();
    Changes changes();
    QStringList removedFrom(const QList<QTranslator*>& current) const;
    bool isKnown(const QTranslator* translator) const;
    static QList<QTranslator*> qtTranslators();

    // Each translator installed at the last look, by its address.
    QHash<const QTranslator*, KnownTranslator> m_known;
    // Qt's own list as it was at the last look: it shares its data with Qt's until Qt changes it.
    QList<QTranslator*> m_seen;
    int m_walks = 0;
    QString m_locale;
    bool m_localeReportedInStatement = false;
};
