#pragma once

#include "OdDxfGroup.h"
#include "OdStreamBuf.h"
#include "TD_DbExport.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

// Reads the groups of an ASCII DXF file one at a time from a stream, a block of the file at a
// time, under the rules of OdDxfReader: a binary DXF, an empty file, a file that does not
// start with a SECTION, a code that is not a number or a group without its value throw
// OdError naming `source` and the line. A reader that needs only the beginning of a drawing
// reads only that, and holds no more of the file than one block and one group.
class TD_DB_EXPORT OdDxfGroupStream
{
public:
    OdDxfGroupStream(OdStreamBuf& stream, QString source);

    // Reads the next group into `group`; false at the end of the file or after the EOF group.
    bool next(OdDxfGroup& group);

private:
    bool nextLine(QByteArray& line);
    bool fill();
    void checkFirstBlock() const;

    OdStreamBuf& m_stream;
    QString m_source;
    std::uint64_t m_left;
    QByteArray m_block;
    int m_position = 0;
    int m_line = 0;
    bool m_started = false;
    bool m_ended = false;
};
