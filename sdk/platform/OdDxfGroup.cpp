#include "OdDxfGroup.h"

#include <QTextCodec>

#include <utility>

OdDxfGroup::OdDxfGroup(int code, QByteArray value) : m_code(code), m_value(std::move(value)) {}

QString OdDxfGroup::text() const
{
    QTextCodec::ConverterState state;
    const QString utf8 =
        QTextCodec::codecForName("UTF-8")->toUnicode(m_value.constData(), m_value.size(), &state);
    return state.invalidChars == 0 ? utf8 : QString::fromLatin1(m_value);
}

int OdDxfGroup::toInt() const
{
    return m_value.trimmed().toInt();
}

bool OdDxfGroup::isStart(const char* type) const
{
    return m_code == 0 && m_value.trimmed() == type;
}
