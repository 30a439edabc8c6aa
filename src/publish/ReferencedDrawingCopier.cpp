#include "ReferencedDrawingCopier.h"

#include "PlainFileCopy.h"

#include <QDir>
#include <QFileInfo>

#include <OdDbBlockTableRecord.h>
#include <OdDbDatabase.h>
#include <OdDbXrefGraph.h>

#include <utility>
#include <vector>

ReferencedDrawingCopier::ReferencedDrawingCopier(QString folder) : m_folder(std::move(folder)) {}

void ReferencedDrawingCopier::copyReferencesOf(OdDbDatabase* database)
{
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(database, graph);
    if (const OdDbGraphNode* root = graph.rootNode())
        copyFrom(root);
}

void ReferencedDrawingCopier::copyFrom(const OdDbGraphNode* root)
{
    // Depth first, in the order of the references, on a stack of its own: a chain of
    // references can be longer than the thread's stack is deep.
    std::vector<std::pair<const OdDbGraphNode*, int>> path{{root, 0}};
    while (!path.empty()) {
        const OdDbGraphNode* node = path.back().first;
        const int next = path.back().second++;
        if (next >= node->numOut()) {
            path.pop_back();
            continue;
        }
        const OdDbGraphNode* referenced = node->out(next);
        if (!m_visited.insert(referenced).second)
            continue;
        copy(referenced);
        path.emplace_back(referenced, 0);
    }
}

void ReferencedDrawingCopier::copy(const OdDbGraphNode* node) const
{
    const auto* xrefNode = dynamic_cast<const OdDbXrefGraphNode*>(node);
    if (!xrefNode)
        return;
    const OdDbBlockTableRecordPtr record =
        OdDbBlockTableRecord::cast(xrefNode->btrId().openObject());
    if (!record)
        return;
    const QString source = referencedFile(*record);
    // Only a drawing file is copied (a pipe would block the copy for ever, a device would copy
    // as an empty file): PlainFileCopy leaves out what is not a regular file, as a missing one.
    // An existing file is never replaced.
    PlainFileCopy::copy(source, m_folder + QLatin1Char('/') + QFileInfo(source).fileName());
}

QString ReferencedDrawingCopier::referencedFile(const OdDbBlockTableRecord& record)
{
    QString path = toQString(record.pathName());
    // Drawings made on Windows separate folders with "\".
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (QDir::isAbsolutePath(path) || !record.database())
        return path;
    const QFileInfo referring(toQString(record.database()->getFilename()));
    return QDir(referring.absolutePath()).absoluteFilePath(path);
}
