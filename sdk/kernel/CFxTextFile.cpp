#include "CFxTextFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

namespace {
constexpr qint64 kChunk = 64 * 1024;

QString nulAt(qint64 offset)
{
    return QStringLiteral("it holds a NUL byte (at byte %1), so it is not text").arg(offset);
}

QString tooLarge()
{
    return QStringLiteral("it is larger than %1 bytes").arg(CFxTextFile::kMaxSize);
}
// The kind of something that exists and is neither a regular file nor a folder.
QString specialFileKind(const QString& path)
{
#if defined(Q_OS_UNIX)
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0) {
        if (S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode))
            return QStringLiteral("it is a device, not a regular file");
        if (S_ISFIFO(status.st_mode))
            return QStringLiteral("it is a pipe, not a regular file");
        if (S_ISSOCK(status.st_mode))
            return QStringLiteral("it is a socket, not a regular file");
    }
#else
    Q_UNUSED(path);
#endif
    return QStringLiteral("it is not a regular file");
}
} // namespace

QString CFxTextFile::notRegularFile(const QString& path)
{
    // QFileInfo knows Qt's resources (":/...") too, which the system cannot be asked about.
    const QFileInfo info(path);
    if (info.isFile() || !info.exists())
        return QString();
    if (info.isDir())
        return QStringLiteral("it is a folder");
    return specialFileKind(path);
}

bool CFxTextFile::read(const QString& path, QByteArray& content, QString& error)
{
    content.clear();
    error = notRegularFile(path);
    if (!error.isEmpty())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return false;
    }
    auto refuse = [&](const QString& why) {
        content.clear();
        error = why;
        return false;
    };
    // A regular file says its size, and is read in pieces up to the bound all the same: a file
    // of the system (in /proc) says 0 and holds more, and a file may grow while it is read.
    if (!file.isSequential() && file.size() > kMaxSize)
        return refuse(tooLarge());
    while (true) {
        const QByteArray piece = file.read(kChunk);
        if (piece.isEmpty())
            break;
        const int nul = piece.indexOf('\0');
        if (nul >= 0)
            return refuse(nulAt(content.size() + nul));
        content += piece;
        if (content.size() > kMaxSize)
            return refuse(tooLarge());
    }
    if (file.error() != QFileDevice::NoError)
        return refuse(file.errorString());
    QString why;
    if (!check(content, why))
        return refuse(why);
    return true;
}

bool CFxTextFile::check(const QByteArray& content, QString& error)
{
    if (content.size() > kMaxSize) {
        error = tooLarge();
        return false;
    }
    const int nul = content.indexOf('\0');
    if (nul >= 0) {
        error = nulAt(nul);
        return false;
    }
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(content.constData(), content.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        error = QStringLiteral("it is not UTF-8 text");
        return false;
    }
    return true;
}
