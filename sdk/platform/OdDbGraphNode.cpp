#include "OdDbGraphNode.h"

#include <algorithm>

OdDbGraphNode::OdDbGraphNode() = default;

OdDbGraphNode::~OdDbGraphNode() = default;

OdDbGraphNode* OdDbGraphNode::out(int index) const
{
    return index >= 0 && index < numOut() ? m_out[static_cast<std::size_t>(index)] : nullptr;
}

void OdDbGraphNode::addRefTo(OdDbGraphNode* node)
{
    if (node && std::find(m_out.begin(), m_out.end(), node) == m_out.end())
        m_out.push_back(node);
}
