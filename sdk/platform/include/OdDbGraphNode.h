#pragma once

#include "TD_DbExport.h"

#include <vector>

// A node of a graph of database objects, with its out-going references to other nodes of
// the same graph, in the order they were added.
class TD_DB_EXPORT OdDbGraphNode
{
public:
    OdDbGraphNode();
    virtual ~OdDbGraphNode();
    OdDbGraphNode(const OdDbGraphNode&) = delete;
    OdDbGraphNode& operator=(const OdDbGraphNode&) = delete;

    int numOut() const { return static_cast<int>(m_out.size()); }
    // Null when `index` is out of range.
    OdDbGraphNode* out(int index) const;
    // Adds a reference to `node`; a node already referenced is not added twice.
    void addRefTo(OdDbGraphNode* node);

private:
    std::vector<OdDbGraphNode*> m_out;
};
