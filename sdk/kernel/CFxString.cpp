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
    return toQString().compare(other.toQString(), Qt::CaseInsensitive) == 0;
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
