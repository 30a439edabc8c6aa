#pragma once

#include "OdDb.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbObjectId.h"
#include "OdDxfGroup.h"
#include "OdRxObject.h"
#include "OdSmartPtr.h"
#include "OdStreamBuf.h"
#include "OdString.h"
#include "TD_DbExport.h"

#include <vector>

class OdDbDatabase;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

// A drawing: every group of the DXF file it was read from, in order, and the block records
// that those groups define. Writing it gives back, group for group, what was read.
class TD_DB_EXPORT OdDbDatabase : public OdRxObject
{
public:
    ~OdDbDatabase() override;

    // Reads the drawing at `path` through the system services. Throws OdError, with the
    // reason, when the file cannot be read or is not an ASCII DXF drawing.
    static OdDbDatabasePtr readFile(const OdString& path);
    // Reads, of the drawing at `path`, only what names its external references: the file is
    // read as a stream up to the end of its BLOCKS section, and the database holds the block
    // headers alone (writing it writes those). Damage after that section goes unseen; damage
    // before it throws OdError as readFile does.
    static OdDbDatabasePtr readReferences(const OdString& path);
    // `object` as a database; null when it is none.
    static OdDbDatabasePtr cast(const OdRxObject* object);

    // The absolute path the drawing was read from.
    const OdString& getFilename() const { return m_fileName; }

    // Writes the drawing into `stream`. The version code and the DXF precision are accepted
    // as the platform's and otherwise not looked at; the thumbnail is the one the drawing
    // holds, if any. Throws OdError for a null stream, for kDxb, or when the stream fails.
    void writeFile(OdStreamBuf* stream, OdDb::SaveType fileType, OdDb::DwgVersion fileVersion,
                   bool saveThumbnailImage = false, int dxfPrecision = 16) const;

    const std::vector<OdDxfGroup>& groups() const { return m_groups; }

    // The block records, in the order the drawing defines its blocks.
    int numBlockRecords() const { return static_cast<int>(m_blocks.size()); }
    OdDbObjectId blockRecordId(int index);
    // The object that an id of this database names; null when there is none.
    OdDbObjectPtr objectAt(int index) const;

protected:
    OdDbDatabase(OdString fileName, std::vector<OdDxfGroup> groups, QByteArray lineEnding);

private:
    void readBlocks();
    void addBlock(std::size_t begin, std::size_t end);

    OdString m_fileName;
    std::vector<OdDxfGroup> m_groups;
    QByteArray m_lineEnding;
    std::vector<OdDbBlockTableRecordPtr> m_blocks;
};
