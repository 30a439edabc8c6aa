#pragma once

#include <QLocale>
#include <QtCore/private/qlocale_p.h>

// Makes QLocale::system() answer with the locale of that name for as long as it lives, the
// way Qt's own tests stand in for the operating system.
class FakeSystemLocale : public QSystemLocale
{
public:
    explicit FakeSystemLocale(const QString& name);

    QVariant query(QueryType type, QVariant in) const override;
    QLocale fallbackUiLocale() const override;

private:
    QLocale m_locale;
};
