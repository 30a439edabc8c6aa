#include "CompanionSettings.h"

#include <QSettings>

#include <CFxRegistry.h>

// Every text handed to QSettings is built on the heap: QSettings keeps keys and paths in its
// caches beyond this module's life, and a literal's text would go with the module's library.
bool CompanionSettings::networkCompanionsDisabled()
{
    const QSettings settings(QSettings::SystemScope, QString::fromLatin1("Corvane"),
                             QString::fromLatin1("Quillon"));
    const QVariant value = settings.value(QString::fromLatin1("Network/premiumnetworkdisable"));
    if (!value.isValid())
        return false;
    return value.toString().trimmed().compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
}

bool CompanionSettings::collaborationEnabled()
{
    const auto key =
        CFxRegistry::openKey(QString::fromLatin1("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\"
                                                 "BfxConnectors\\"));
    return key->value(QString::fromLatin1("OmniplaneCSEnable"), false).toBool();
}
