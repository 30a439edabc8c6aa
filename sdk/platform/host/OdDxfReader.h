#pragma once

#include "OdDxfGroup.h"
#include "TD_DbExport.h"

#include <QByteArray>
#include <QString>

#include <vector>

// Reads the groups of an ASCII DXF file: pairs of lines, a group code and its value, from
// the first SECTION to the EOF group. Anything else (a binary DXF, a file that does not start
// with a section, a code that is not a number, a group without its value, a missing EOF, text
// after EOF) is not a readable drawing: read throws OdError naming `source` and the line.
class TD_DB_EXPORT OdDxfReader
{
public:
    static std::vector<OdDxfGroup> read(const QByteArray& content, const QString& source);
    // The line ending the file uses ("\r\n" or "\n"), taken from its first line.
    static QByteArray lineEnding(const QByteArray& content);
};
