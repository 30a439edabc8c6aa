#include "CompanionSettings.h"

#include "common/HeapText.h"
#include "common/SystemRegistry.h"

#include <QSettings>

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
    return SystemRegistry::value(heapText("HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\BfxConnectors\\"),
                                 heapText("OmniplaneCSEnable"), false)
        .toBool();
}
