#include "HomeFolders.h"

#include <QDir>
#include <QFile>

HomeFolders::HomeFolders(const QString& root) : m_root(root)
{
    for (const auto& variable : variables())
        QDir().mkpath(variable.second);
    // The runtime folder must be the user's alone, or Qt complains and looks elsewhere.
    QFile::setPermissions(m_root + QStringLiteral("/runtime"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QList<QPair<QString, QString>> HomeFolders::variables() const
{
    return {
        {QStringLiteral("HOME"), m_root},
        {QStringLiteral("XDG_CONFIG_HOME"), configHome()},
        {QStringLiteral("XDG_DATA_HOME"), dataHome()},
        {QStringLiteral("XDG_CACHE_HOME"), m_root + QStringLiteral("/cache")},
        {QStringLiteral("XDG_RUNTIME_DIR"), m_root + QStringLiteral("/runtime")},
        {QStringLiteral("XDG_CONFIG_DIRS"), systemConfig()},
        {QStringLiteral("XDG_DATA_DIRS"), m_root + QStringLiteral("/usr-share")},
    };
}
