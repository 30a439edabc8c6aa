#pragma once

#include "TD_RootExport.h"

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
