#include "OdString.h"

#include <utility>

const OdString OdString::kEmpty;

OdString::OdString(const wchar_t* text) : m_text(text ? text : L"") {}

OdString::OdString(std::wstring text) : m_text(std::move(text)) {}

int OdString::compare(const OdString& other) const
{
    return m_text.compare(other.m_text);
}

int OdString::iCompare(const OdString& other) const
{
    // Unicode case folding, not just ASCII: identifiers may carry any letters.
    return toQString(*this).compare(toQString(other), Qt::CaseInsensitive);
}

OdString& OdString::operator+=(const OdString& other)
{
    m_text += other.m_text;
    return *this;
}
