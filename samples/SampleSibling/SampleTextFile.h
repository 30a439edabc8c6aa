#pragma once

#include <QByteArray>
#include <QString>

// A text file of the sample's own (its ribbon records): UTF-8 without NUL bytes, at most
// kMaxSize bytes. Anything else is refused before it is parsed, and reading stops as soon as
// the file proves too large or not text, so that a device such as /dev/zero is refused at once.
// A sibling reads its files itself: the host's own file helpers are not a module's to use.
class SampleTextFile
{
public:
    static constexpr qint64 kMaxSize = 64 * 1024 * 1024;

    // Reads the file at `path`; false, with error() telling why, when it cannot be read or is
    // not such a text.
    bool read(const QString& path);

    const QByteArray& content() const { return m_content; }
    QString error() const { return m_error; }

private:
    bool refuse(const QString& why);

    QByteArray m_content;
    QString m_error;
};
