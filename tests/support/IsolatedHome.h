#pragma once

#include "HomeFolders.h"

#include <QByteArray>
#include <QTemporaryDir>

// A home of its own for a test in this process: HOME and the XDG folders point into a fresh
// temporary folder, and QSettings' user and system scopes follow them. Everything is
// restored when it goes.
class IsolatedHome
{
public:
    IsolatedHome();
    ~IsolatedHome();

    const HomeFolders& folders() const { return m_folders; }
    QString path() const { return m_folders.root(); }

private:
    QTemporaryDir m_temporary;
    HomeFolders m_folders;
    QList<QPair<QByteArray, QByteArray>> m_saved;
};
