#include "CFxString.h"

CFxString::CFxString(const wchar_t* text) : m_text(text ? text : L"") {}

CFxString::CFxString(const char* utf8) : m_text(QString::fromUtf8(utf8).toStdWString()) {}

CFxString::CFxString(const QString& text) : m_text(text.toStdWString()) {}

CFxString::CFxString(const OdString& text) : m_text(text.wide()) {}

QString CFxString::toQString() const
{
    return QString::fromStdWString(m_text);
}

OdString CFxString::toOdString() const
{
    return OdString(m_text);
}

bool CFxString::equalNoCase(const CFxString& other) const
{
    // Every identifier look-up of the UI model compares this way, entry by entry: fold the
    // characters in place, as QString::compare with Qt::CaseInsensitive does, rather than make
    // two QStrings per comparison.
    if constexpr (sizeof(wchar_t) == sizeof(char32_t)) {
        if (m_text.size() != other.m_text.size())
            return false;
        for (std::size_t i = 0; i < m_text.size(); ++i) {
            const wchar_t a = m_text[i];
            const wchar_t b = other.m_text[i];
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
        std::wstring folded(m_text);
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
