#pragma once

#include "TD_RootExport.h"

#include <QString>

#include <string>

// The platform's wide-character string. Comparisons by value; iCompare ignores letter case.
class TD_ROOT_EXPORT OdString
{
public:
    OdString() = default;
    OdString(const wchar_t* text);
    OdString(std::wstring text);

    static const OdString kEmpty;

    const wchar_t* c_str() const { return m_text.c_str(); }
    const std::wstring& wide() const { return m_text; }
    bool isEmpty() const { return m_text.empty(); }
    int getLength() const { return static_cast<int>(m_text.size()); }

    int compare(const OdString& other) const;
    int iCompare(const OdString& other) const;

    OdString& operator+=(const OdString& other);
    friend OdString operator+(OdString left, const OdString& right) { return left += right; }
    friend bool operator==(const OdString& a, const OdString& b) { return a.m_text == b.m_text; }
    friend bool operator!=(const OdString& a, const OdString& b) { return a.m_text != b.m_text; }
    friend bool operator<(const OdString& a, const OdString& b) { return a.m_text < b.m_text; }

private:
    std::wstring m_text;
};

// The one conversion between the platform's strings and Qt's, for every library, the module and
// the host alike. wchar_t holds UTF-32 on Linux and UTF-16 on Windows; Qt's std::wstring
// conversions read and write whichever the compiler gives, so the text survives the round trip
// on both. Inline, so it is compiled into each caller and exported by none.
inline QString toQString(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

inline OdString toOdString(const QString& text)
{
    return OdString(text.toStdWString());
}
