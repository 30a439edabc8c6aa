#pragma once

#include "OdDbGraph.h"
#include "OdDbXrefGraphNode.h"
#include "OdResult.h"
#include "TD_DbExport.h"

class OdDbDatabase;

// The drawings that a drawing references, directly and through the drawings it references.
class TD_DB_EXPORT OdDbXrefGraph : public OdDbGraph
{
public:
    OdDbXrefGraph();
    ~OdDbXrefGraph() override;

    // Fills `graph` (emptied first) from `database`: the root node is the database; each
    // block record that is an external reference adds a reference to the node of the drawing
    // its path names, in the order of the block records. A relative path is taken from the
    // folder of the drawing that holds it ("\" counts as a folder separator as well), and each
    // referenced file is read to follow its own references. A drawing reached twice is one
    // node. A reference back to a drawing that is being followed (a circular reference) is
    // left out, so the graph has no cycles. A file that is missing or not a readable drawing
    // is a node without a database and without references. Of each referenced file only the
    // part up to its block definitions is read, and the walk needs no stack of its own however
    // long a chain of references is.
    static OdResult getFrom(OdDbDatabase* database, OdDbXrefGraph& graph);

    OdDbXrefGraphNode* xrefNode(int index) const;
};
