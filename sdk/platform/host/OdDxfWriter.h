#pragma once

#include "OdDxfGroup.h"
#include "TD_DbExport.h"

#include <QByteArray>

#include <vector>

// Writes groups as ASCII DXF: each group code right-aligned in three columns, as DXF writers
// have always done, and each value as it was read, every line ended with `lineEnding`.
class TD_DB_EXPORT OdDxfWriter
{
public:
    static QByteArray write(const std::vector<OdDxfGroup>& groups, const QByteArray& lineEnding);
};
