#include "FuzzEnvironment.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdlib>

namespace {
QTemporaryDir* g_home = nullptr;
QApplication* g_application = nullptr;

void removeHome()
{
    delete g_home;
    g_home = nullptr;
}

void pointAt(const char* variable, const QString& folder)
{
    QDir().mkpath(folder);
    qputenv(variable, QFile::encodeName(folder));
}
} // namespace

void FuzzEnvironment::prepare(int* argc, char*** argv)
{
    if (g_application)
        return;
    // Kept to the end of the process: libFuzzer leaves through exit() at any time.
    g_home = new QTemporaryDir(QDir::tempPath() + QStringLiteral("/ec-fuzz-XXXXXX"));
    std::atexit(removeHome);
    const QString root = g_home->path();
    pointAt("HOME", root + QStringLiteral("/home"));
    pointAt("XDG_CONFIG_HOME", root + QStringLiteral("/config"));
    pointAt("XDG_CONFIG_DIRS", root + QStringLiteral("/system-config"));
    pointAt("XDG_DATA_HOME", root + QStringLiteral("/data"));
    pointAt("XDG_CACHE_HOME", root + QStringLiteral("/cache"));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt's own warnings about what a hostile input makes it do would drown libFuzzer's output.
    qputenv("QT_LOGGING_RULES", "*=false");
    QDir().mkpath(inputFolder());
    g_application = new QApplication(*argc, *argv);
}

QString FuzzEnvironment::home()
{
    return g_home->path() + QStringLiteral("/home");
}

QString FuzzEnvironment::inputFolder()
{
    return g_home->path() + QStringLiteral("/inputs");
}
