#pragma once

#include <QString>
#include <QStringList>

// What an error message quotes of its input: a statement, a word, a path, an option's value, an
// identifier from a profile. Input may be a megabyte long; the message quotes a bounded part
// of it, so that it stays one readable line and says how long the input was.
class QuotedText
{
public:
    static constexpr int kMaxLength = 200;

    // `text` itself when it is at most kMaxLength characters long; otherwise its first
    // kMaxLength characters, then "... (N characters)".
    static QString of(const QString& text);
    // A message made elsewhere (by the platform, the kernel, Qt) with each of `texts` that it
    // repeats quoted as `of` quotes it, and every stretch between single quotes too.
    static QString within(QString message, const QStringList& texts = {});
};
