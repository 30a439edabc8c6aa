#include "SystemRegistry.h"

#include <RegistryStandIn.h>

QString SystemRegistry::classesRootDefault(const wchar_t* subKey)
{
    const auto key = RegistryStandIn::openKey(QLatin1String("HKEY_CLASSES_ROOT\\") +
                                              QString::fromWCharArray(subKey));
    const QVariant text = key->value(QLatin1String("Default"));
    return text.isValid() ? text.toString() : QString();
}

QVariant SystemRegistry::value(const QString& keyPath, const QString& name,
                               const QVariant& fallback)
{
    return RegistryStandIn::openKey(keyPath)->value(name, fallback);
}
