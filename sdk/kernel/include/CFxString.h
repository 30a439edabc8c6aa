#pragma once

#include "FxKernelExport.h"

#include <QString>

#include <OdString.h>

#include <string>

// The host's wide-character string; host identifiers and texts pass as CFxString.
class FX_KERNEL_EXPORT CFxString
{
public:
    CFxString() = default;
    CFxString(const wchar_t* text);
    CFxString(const char* utf8);
    CFxString(const QString& text);
    CFxString(const OdString& text);

    QString toQString() const;
    OdString toOdString() const;
    const wchar_t* c_str() const { return m_text.c_str(); }
    bool isEmpty() const { return m_text.isEmpty(); }
    int length() const { return m_text.getLength(); }

    // Equal without regard to letter case.
    bool equalNoCase(const CFxString& other) const;
    // The text with every character case-folded: two strings are equalNoCase exactly when
    // their folded keys are equal, so it keys look-ups that ignore letter case.
    std::wstring foldedKey() const;
    // Exact comparison: negative, zero or positive, as std::wstring::compare.
    int compare(const CFxString& other) const;

    CFxString& operator+=(const CFxString& other);
    friend CFxString operator+(CFxString left, const CFxString& right) { return left += right; }
    friend bool operator==(const CFxString& a, const CFxString& b) { return a.m_text == b.m_text; }
    friend bool operator!=(const CFxString& a, const CFxString& b) { return a.m_text != b.m_text; }

private:
    OdString m_text;
};
