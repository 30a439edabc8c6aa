#include "OdDbXrefGraph.h"

#include "OdDbBlockTableRecord.h"
#include "OdDbDatabase.h"
#include "OdError.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <map>

namespace {
QString toQt(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

QString resolvedPath(const OdString& pathName, const QString& referringFile)
{
    QString path = toQt(pathName);
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

OdDbDatabasePtr readIfPossible(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return {};
    try {
        return OdDbDatabase::readFile(OdString(path.toStdWString()));
    } catch (const OdError&) {
        return {};
    }
}

// Walks the references depth first, making one node per drawing.
class XrefGraphBuilder
{
public:
    explicit XrefGraphBuilder(OdDbXrefGraph& graph) : m_graph(graph) {}

    void build(OdDbDatabase* root)
    {
        auto* node = new OdDbXrefGraphNode(OdDbObjectId(), OdDbDatabasePtr(root));
        m_graph.addNode(node);
        const QString file = toQt(root->getFilename());
        follow(node, file.isEmpty() ? QString() : drawingKey(file));
    }

private:
    void follow(OdDbXrefGraphNode* node, const QString& key)
    {
        m_following.insert(key);
        OdDbDatabase* database = node->database();
        for (int index = 0; index < database->numBlockRecords(); ++index)
            addReference(node, database->blockRecordId(index));
        m_following.remove(key);
    }

    void addReference(OdDbXrefGraphNode* node, const OdDbObjectId& id)
    {
        const OdDbBlockTableRecordPtr record = OdDbBlockTableRecord::cast(id.openObject());
        if (!record || !record->isFromExternalReference())
            return;
        const QString path = resolvedPath(record->pathName(), toQt(id.database()->getFilename()));
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
            follow(referenced, key);
    }

    OdDbXrefGraph& m_graph;
    std::map<QString, OdDbXrefGraphNode*> m_nodes;
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
