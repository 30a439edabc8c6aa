#pragma once

#include "OdDbGraphNode.h"
#include "TD_DbExport.h"

#include <memory>
#include <vector>

// A graph of database objects. It owns its nodes; the first node added is the root.
class TD_DB_EXPORT OdDbGraph
{
public:
    OdDbGraph();
    virtual ~OdDbGraph();
    OdDbGraph(const OdDbGraph&) = delete;
    OdDbGraph& operator=(const OdDbGraph&) = delete;

    // Null while the graph is empty.
    OdDbGraphNode* rootNode() const { return node(0); }
    int numNodes() const { return static_cast<int>(m_nodes.size()); }
    // Null when `index` is out of range.
    OdDbGraphNode* node(int index) const;
    // Takes `node` over.
    void addNode(OdDbGraphNode* node);
    // Removes and destroys every node.
    void reset();

private:
    std::vector<std::unique_ptr<OdDbGraphNode>> m_nodes;
};
