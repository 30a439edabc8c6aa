#include "OdDbXrefGraph.h"

#include "OdDbBlockTableRecord.h"
#include "OdDbDxfDatabase.h"
#include "OdError.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <map>
#include <vector>

namespace {
QString resolvedPath(const OdString& pathName, const QString& referringFile)
{
    QString path = toQString(pathName);
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (QDir::isAbsolutePath(path))
        return QDir::cleanPath(path);
    const QString folder =
        referringFile.isEmpty() ? QDir::currentPath() : QFileInfo(referringFile).absolutePath();
    return QDir::cleanPath(QDir(folder).absoluteFilePath(path));
}

// What makes two paths the same drawing: the file itself when it exists.
QString drawingKey(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

// Of a referenced drawing only its references are read: a tree of large drawings costs what
// their block tables cost.
OdDbDatabasePtr readIfPossible(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return {};
    try {
        return OdDbDxfDatabase::readReferences(toOdString(path));
    } catch (const OdError&) {
        return {};
    }
}

// The drawings of this platform are all read from DXF files; one of another kind names no
// block records.
OdDbDxfDatabase* dxfDatabase(const OdDbXrefGraphNode* node)
{
    return dynamic_cast<OdDbDxfDatabase*>(node->database());
}

// Walks the references depth first, making one node per drawing. The walk keeps its own
// stack: a chain of references as long as the disk holds must not exhaust the thread's.
class XrefGraphBuilder
{
public:
    explicit XrefGraphBuilder(OdDbXrefGraph& graph) : m_graph(graph) {}

    void build(OdDbDatabase* root)
    {
        auto* node = new OdDbXrefGraphNode(OdDbObjectId(), OdDbDatabasePtr(root));
        m_graph.addNode(node);
        const QString file = toQString(root->getFilename());
        enter(node, file.isEmpty() ? QString() : drawingKey(file));
        while (!m_path.empty()) {
            Following& top = m_path.back();
            if (!top.database || top.next >= top.database->numBlockRecords()) {
                m_following.remove(top.key);
                m_path.pop_back();
                continue;
            }
            OdDbXrefGraphNode* node = top.node;
            const OdDbObjectId id = top.database->blockRecordId(top.next++);
            addReference(node, id);
        }
    }

private:
    // A drawing whose references are being walked, and the next of its block records.
    struct Following
    {
        OdDbXrefGraphNode* node;
        OdDbDxfDatabase* database;
        QString key;
        int next;
    };

    void enter(OdDbXrefGraphNode* node, const QString& key)
    {
        m_following.insert(key);
        m_path.push_back({node, dxfDatabase(node), key, 0});
    }

    void addReference(OdDbXrefGraphNode* node, const OdDbObjectId& id)
    {
        const OdDbBlockTableRecordPtr record = OdDbBlockTableRecord::cast(id.openObject());
        if (!record || !record->isFromExternalReference())
            return;
        const QString path =
            resolvedPath(record->pathName(), toQString(id.database()->getFilename()));
        const QString key = drawingKey(path);
        if (m_following.contains(key))
            return;
        const auto known = m_nodes.find(key);
        if (known != m_nodes.end()) {
            node->addRefTo(known->second);
            return;
        }
        auto* referenced = new OdDbXrefGraphNode(id, readIfPossible(path));
        m_graph.addNode(referenced);
        m_nodes[key] = referenced;
        node->addRefTo(referenced);
        if (referenced->database())
            enter(referenced, key);
    }

    OdDbXrefGraph& m_graph;
    std::map<QString, OdDbXrefGraphNode*> m_nodes;
    // The drawings from the root down to the one being walked.
    std::vector<Following> m_path;
    QSet<QString> m_following;
};
} // namespace

OdDbXrefGraph::OdDbXrefGraph() = default;

OdDbXrefGraph::~OdDbXrefGraph() = default;

OdResult OdDbXrefGraph::getFrom(OdDbDatabase* database, OdDbXrefGraph& graph)
{
    graph.reset();
    if (!database)
        return eNullObjectPointer;
    XrefGraphBuilder(graph).build(database);
    return eOk;
}

OdDbXrefGraphNode* OdDbXrefGraph::xrefNode(int index) const
{
    return static_cast<OdDbXrefGraphNode*>(node(index));
}
