#include "OdDbXrefGraphNode.h"

#include <utility>

OdDbXrefGraphNode::OdDbXrefGraphNode(OdDbObjectId blockRecordId, OdDbDatabasePtr database)
    : m_blockRecordId(blockRecordId), m_database(std::move(database))
{}

OdDbXrefGraphNode::~OdDbXrefGraphNode() = default;
