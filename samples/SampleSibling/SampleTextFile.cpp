#include "SampleTextFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

bool SampleTextFile::read(const QString& path)
{
    m_content.clear();
    // Asked before opening: a pipe with no writer would block the host's thread for ever.
    const QFileInfo info(path);
    if (info.isDir())
        return refuse(QStringLiteral("it is a folder"));
    if (info.exists() && !info.isFile())
        return refuse(QStringLiteral("it is not a regular file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(file.errorString());
    const QString tooLarge = QStringLiteral("it is larger than %1 bytes").arg(kMaxSize);
    if (!file.isSequential() && file.size() > kMaxSize)
        return refuse(tooLarge);
    // Read in pieces, up to the bound: a file may grow while it is read.
    for (QByteArray piece = file.read(64 * 1024); !piece.isEmpty(); piece = file.read(64 * 1024)) {
        if (const int nul = piece.indexOf('\0'); nul >= 0)
            return refuse(QStringLiteral("it holds a NUL byte (at byte %1), so it is not text")
                              .arg(m_content.size() + nul));
        m_content += piece;
        if (m_content.size() > kMaxSize)
            return refuse(tooLarge);
    }
    if (file.error() != QFileDevice::NoError)
        return refuse(file.errorString());
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(m_content.constData(), m_content.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return refuse(QStringLiteral("it is not UTF-8 text"));
    return true;
}

bool SampleTextFile::refuse(const QString& why)
{
    m_content.clear();
    m_error = why;
    return false;
}
