#include "OdDbGraph.h"

OdDbGraph::OdDbGraph() = default;

OdDbGraph::~OdDbGraph() = default;

OdDbGraphNode* OdDbGraph::node(int index) const
{
    return index >= 0 && index < numNodes() ? m_nodes[static_cast<std::size_t>(index)].get()
                                            : nullptr;
}

void OdDbGraph::addNode(OdDbGraphNode* node)
{
    if (node)
        m_nodes.emplace_back(node);
}

void OdDbGraph::reset()
{
    m_nodes.clear();
}
