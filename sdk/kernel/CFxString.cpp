#include "CFxString.h"

CFxString::CFxString(const wchar_t* text) : m_text(text) {}

CFxString::CFxString(const char* utf8) : m_text(::toOdString(QString::fromUtf8(utf8))) {}

CFxString::CFxString(const QString& text) : m_text(::toOdString(text)) {}

CFxString::CFxString(const OdString& text) : m_text(text) {}

QString CFxString::toQString() const
{
    return ::toQString(m_text);
}

OdString CFxString::toOdString() const
{
    return m_text;
}

bool CFxString::equalNoCase(const CFxString& other) const
{
    // Every identifier look-up of the UI model compares this way, entry by entry: fold the
    // characters in place, as QString::compare with Qt::CaseInsensitive does, rather than make
    // two QStrings per comparison.
    if constexpr (sizeof(wchar_t) == sizeof(char32_t)) {
        const std::wstring& mine = m_text.wide();
        const std::wstring& theirs = other.m_text.wide();
        if (mine.size() != theirs.size())
            return false;
        for (std::size_t i = 0; i < mine.size(); ++i) {
            const wchar_t a = mine[i];
            const wchar_t b = theirs[i];
            if (a != b && QChar::toCaseFolded(static_cast<uint>(a)) !=
                              QChar::toCaseFolded(static_cast<uint>(b)))
                return false;
        }
        return true;
    } else {
        // UTF-16: surrogate pairs fold as one character, which QString knows how to do.
        return toQString().compare(other.toQString(), Qt::CaseInsensitive) == 0;
    }
}

std::wstring CFxString::foldedKey() const
{
    if constexpr (sizeof(wchar_t) == sizeof(char32_t)) {
        std::wstring folded(m_text.wide());
        for (wchar_t& c : folded)
            c = static_cast<wchar_t>(QChar::toCaseFolded(static_cast<uint>(c)));
        return folded;
    } else {
        return toQString().toCaseFolded().toStdWString();
    }
}

int CFxString::compare(const CFxString& other) const
{
    return m_text.compare(other.m_text);
}

CFxString& CFxString::operator+=(const CFxString& other)
{
    m_text += other.m_text;
    return *this;
}
