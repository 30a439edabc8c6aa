#include "PrivateSessionBus.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

PrivateSessionBus::PrivateSessionBus(const QString& folder) : m_folder(folder)
{
    QDir().mkpath(serviceFolder());
    QFile config(configFile());
    if (!config.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw std::runtime_error("cannot write " + configFile().toStdString());
    config.write(QStringLiteral("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus "
                                "Configuration 1.0//EN\"\n"
                                " \"http://www.freedesktop.org/standards/dbus/1.0/"
                                "busconfig.dtd\">\n"
                                "<busconfig>\n"
                                "  <include>/usr/share/dbus-1/session.conf</include>\n"
                                "  <servicedir>%1</servicedir>\n"
                                "</busconfig>\n")
                     .arg(serviceFolder().toHtmlEscaped())
                     .toUtf8());
}

QStringList PrivateSessionBus::launcher() const
{
    return {QStringLiteral("dbus-run-session"), QStringLiteral("--config-file=") + configFile(),
            QStringLiteral("--")};
}
