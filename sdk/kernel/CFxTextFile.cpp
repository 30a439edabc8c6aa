#include "CFxTextFile.h"

#include <QFile>
#include <QTextCodec>

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
} // namespace

bool CFxTextFile::read(const QString& path, QByteArray& content, QString& error)
{
    content.clear();
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
    // A regular file says its size; a pipe or a device is read in pieces up to the bound.
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
