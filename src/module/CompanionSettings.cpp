#include "CompanionSettings.h"

#include "common/HeapText.h"

#include <QSettings>

#include <CFxRegistry.h>

bool CompanionSettings::networkCompanionsDisabled()
{
    const QSettings settings(QSettings::SystemScope, heapText("Corvane"), heapText("Quillon"));
    const QVariant value = settings.value(heapText("Network/premiumnetworkdisable"));
    if (!value.isValid())
        return false;
    return value.toString().trimmed().compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
}

bool CompanionSettings::collaborationEnabled()
{
    const auto key = CFxRegistry::openKey(heapText("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\"
                                                   "BfxConnectors\\"));
    return key->value(heapText("OmniplaneCSEnable"), false).toBool();
}
