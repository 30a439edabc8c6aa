#pragma once

#include "OdDbBlockTableRecord.h"
#include "OdDbDatabase.h"
#include "OdDbObjectId.h"
#include "OdDxfGroup.h"
#include "TD_DbExport.h"

#include <QByteArray>

#include <vector>

class OdDbDxfDatabase;
using OdDbDxfDatabasePtr = OdSmartPtr<OdDbDxfDatabase>;

// The drawings of the reference platform: every group of the ASCII DXF file a drawing was read
// from, in order, and the block records that those groups define. Writing it gives back, group
// for group, what was read.
class TD_DB_EXPORT OdDbDxfDatabase : public OdDbDatabase
{
public:
    ~OdDbDxfDatabase() override;

    // Reads the drawing at `path` through the system services. Throws OdError, with the
    // reason, when the file cannot be read or is not an ASCII DXF drawing.
    static OdDbDxfDatabasePtr readFile(const OdString& path);
    // Reads, of the drawing at `path`, only what names its external references: the file is
    // read as a stream up to the end of its BLOCKS section, and the database holds the block
    // headers alone (writing it writes those). Damage after that section goes unseen; damage
    // before it throws OdError as readFile does.
    static OdDbDxfDatabasePtr readReferences(const OdString& path);
    // `object` as such a database; null when it is none.
    static OdDbDxfDatabasePtr cast(const OdRxObject* object);

    const OdString& getFilename() const override { return m_fileName; }
    void writeFile(OdStreamBuf* stream, OdDb::SaveType fileType, OdDb::DwgVersion fileVersion,
                   bool saveThumbnailImage = false, int dxfPrecision = 16) const override;

    const std::vector<OdDxfGroup>& groups() const { return m_groups; }

    // The block records, in the order the drawing defines its blocks.
    int numBlockRecords() const { return static_cast<int>(m_blocks.size()); }
    OdDbObjectId blockRecordId(int index);
    // The object that an id of this database names; null when there is none.
    OdDbObjectPtr objectAt(int index) const;

protected:
    OdDbDxfDatabase(OdString fileName, std::vector<OdDxfGroup> groups, QByteArray lineEnding);

private:
    void readBlocks();
    void addBlock(std::size_t begin, std::size_t end);

    OdString m_fileName;
    std::vector<OdDxfGroup> m_groups;
    QByteArray m_lineEnding;
    std::vector<OdDbBlockTableRecordPtr> m_blocks;
};
