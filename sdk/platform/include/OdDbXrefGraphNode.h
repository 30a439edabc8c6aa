#pragma once

#include "OdDbDatabase.h"
#include "OdDbGraphNode.h"
#include "OdDbObjectId.h"
#include "TD_DbExport.h"

// A drawing of an external-reference graph. The root node is the drawing the graph was made
// from (no block record); every other node is a referenced drawing, named by the block record
// through which it was first reached, with its database when the file could be read (for a
// referenced drawing, a database of its references alone).
class TD_DB_EXPORT OdDbXrefGraphNode : public OdDbGraphNode
{
public:
    OdDbXrefGraphNode(OdDbObjectId blockRecordId, OdDbDatabasePtr database);
    ~OdDbXrefGraphNode() override;

    OdDbObjectId btrId() const { return m_blockRecordId; }
    // Null when the referenced file is missing or is not a readable drawing.
    OdDbDatabase* database() const { return m_database.get(); }

private:
    OdDbObjectId m_blockRecordId;
    OdDbDatabasePtr m_database;
};
