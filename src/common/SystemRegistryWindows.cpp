#include "SystemRegistry.h"

#include <QSettings>

#include <windows.h>

#include <vector>

namespace {
// Read access to a key (KEY_READ), as a number: the value the module has always asked with.
constexpr REGSAM kReadAccess = 131097;
static_assert(kReadAccess == KEY_READ, "read access is KEY_READ");

// The default value of an open key, when it is text.
QString defaultText(HKEY key)
{
    DWORD type = 0;
    DWORD bytes = 0;
    if (RegQueryValueExW(key, nullptr, nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
        (type != REG_SZ && type != REG_EXPAND_SZ))
        return QString();
    // One character more than the value holds: a stored text need not end with a null.
    std::vector<wchar_t> text(bytes / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(key, nullptr, nullptr, &type, reinterpret_cast<LPBYTE>(text.data()),
                         &bytes) != ERROR_SUCCESS)
        return QString();
    return QString::fromWCharArray(text.data());
}
} // namespace

QString SystemRegistry::classesRootDefault(const wchar_t* subKey)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, subKey, 0, kReadAccess, &key) != ERROR_SUCCESS)
        return QString();
    const QString text = defaultText(key);
    RegCloseKey(key);
    return text;
}

QVariant SystemRegistry::value(const QString& keyPath, const QString& name,
                               const QVariant& fallback)
{
    return QSettings(keyPath, QSettings::NativeFormat).value(name, fallback);
}
