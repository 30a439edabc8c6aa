#include "CompanionSearch.h"

#include "HostError.h"
#include "QuotedText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#if defined(_WIN32)
#include <windows.h>
#else
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#endif

namespace {
constexpr char kSearchPathVariable[] = "LD_LIBRARY_PATH";

// The loader splits its search path at ':' and ';' and expands "$ORIGIN" and its like.
constexpr char kSearchPathSpecials[] = ":;$";

// The first folder of a search path as the loader reads it.
QString firstFolder(const QByteArray& searchPath)
{
    int end = 0;
    while (end < searchPath.size() && searchPath[end] != ':' && searchPath[end] != ';')
        ++end;
    return end == 0 ? QString() : QDir::cleanPath(QFile::decodeName(searchPath.left(end)));
}

#if !defined(_WIN32)
// The program file this process runs; valgrind and its like answer for their guest here.
QString runningProgram()
{
    return QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
}
#endif
} // namespace

QString CompanionSearch::folder(const QString& companionPath)
{
    const QString chosen = QDir::cleanPath(
        companionPath.isEmpty() ? programFolder() : QFileInfo(companionPath).absoluteFilePath());
#if !defined(_WIN32)
    for (const char* special = kSearchPathSpecials; *special; ++special) {
        if (chosen.contains(QLatin1Char(*special)))
            throw HostError(QStringLiteral("the companion folder %1 holds '%2', which the "
                                           "library search path (%3) cannot name")
                                .arg(QuotedText::of(chosen), QString(QLatin1Char(*special)),
                                     QString::fromLatin1(kSearchPathVariable)));
    }
#endif
    return chosen;
}

std::optional<QByteArray> CompanionSearch::arrangedSearchPath(const QByteArray& current,
                                                              const QString& folder)
{
    if (firstFolder(current) == folder)
        return std::nullopt;
    const QByteArray first = QFile::encodeName(folder);
    // An empty part would stand for the current folder: the folder alone when there is no rest.
    return current.isEmpty() ? first : first + ':' + current;
}

#if defined(_WIN32)
void CompanionSearch::arrange(const QString& folder, char**)
{
    const std::wstring name = QDir::toNativeSeparators(folder).toStdWString();
    if (!SetDllDirectoryW(name.c_str()))
        throw HostError(
            QStringLiteral("cannot make %1 the folder of the companion libraries").arg(folder));
}

QString CompanionSearch::programFolder()
{
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    return QFileInfo(QString::fromWCharArray(path, static_cast<int>(length))).absolutePath();
}
#else
void CompanionSearch::arrange(const QString& folder, char** argv)
{
    const auto searchPath = arrangedSearchPath(qgetenv(kSearchPathVariable), folder);
    if (!searchPath)
        return;
    const QByteArray program = QFile::encodeName(runningProgram());
    if (setenv(kSearchPathVariable, searchPath->constData(), 1) == 0)
        execv(program.constData(), argv);
    // Only reached when the program could not start again.
    throw HostError(QStringLiteral("cannot start again with the companion folder %1 first on the "
                                   "library search path: %2")
                        .arg(folder, QString::fromLocal8Bit(std::strerror(errno))));
}

QString CompanionSearch::programFolder()
{
    return QFileInfo(runningProgram()).absolutePath();
}
#endif
