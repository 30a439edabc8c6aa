#include "IsolatedHome.h"

#include <QFile>
#include <QSettings>

namespace {
void pointSettingsAt(const QString& userFolder, const QString& systemFolder)
{
    // QSettings reads its folders once per process; tell it each time the home changes.
    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, userFolder);
        QSettings::setPath(format, QSettings::SystemScope, systemFolder);
    }
}
} // namespace

IsolatedHome::IsolatedHome() : m_folders(m_temporary.path())
{
    for (const auto& variable : m_folders.variables()) {
        const QByteArray name = variable.first.toLatin1();
        m_saved.append({name, qgetenv(name.constData())});
        qputenv(name.constData(), QFile::encodeName(variable.second));
    }
    pointSettingsAt(m_folders.configHome(), m_folders.systemConfig());
}

IsolatedHome::~IsolatedHome()
{
    for (const auto& saved : m_saved) {
        if (saved.second.isNull())
            qunsetenv(saved.first.constData());
        else
            qputenv(saved.first.constData(), saved.second);
    }
    pointSettingsAt(
        QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")),
        QString::fromLocal8Bit(qgetenv("XDG_CONFIG_DIRS")).section(QLatin1Char(':'), 0, 0));
}
