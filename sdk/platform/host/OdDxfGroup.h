#pragma once

#include "TD_DbExport.h"

#include <QByteArray>
#include <QString>

// One group of a DXF file: its code and its value exactly as the file holds it (without the
// line ending), so that a drawing is written back byte for byte.
class TD_DB_EXPORT OdDxfGroup
{
public:
    OdDxfGroup(int code, QByteArray value);

    int code() const { return m_code; }
    const QByteArray& value() const { return m_value; }
    // The value as text: UTF-8 (drawings since 2007), or else the 8-bit code page's
    // characters taken as Latin-1.
    QString text() const;
    // The value as a whole number (0 when it is none).
    int toInt() const;
    // Whether this group is (0, `type`): the start of an entity, table or section marker.
    bool isStart(const char* type) const;

    friend bool operator==(const OdDxfGroup& a, const OdDxfGroup& b)
    {
        return a.m_code == b.m_code && a.m_value == b.m_value;
    }

private:
    int m_code;
    QByteArray m_value;
};
