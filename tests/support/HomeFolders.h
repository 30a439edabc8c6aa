#pragma once

#include <QList>
#include <QPair>
#include <QString>

// The folders of a home made for a test, below `root`: the home itself and the XDG folders
// (configuration, data, cache, runtime, and the system-wide configuration and data).
class HomeFolders
{
public:
    // Creates the folders.
    explicit HomeFolders(const QString& root);

    QString root() const { return m_root; }
    QString configHome() const { return m_root + QStringLiteral("/config"); }
    QString dataHome() const { return m_root + QStringLiteral("/data"); }
    // The system-wide configuration folder (XDG_CONFIG_DIRS).
    QString systemConfig() const { return m_root + QStringLiteral("/etc-xdg"); }

    // Environment variable and value, for HOME and each XDG variable.
    QList<QPair<QString, QString>> variables() const;

private:
    QString m_root;
};
