// The platform's DXF reader and the reference walk over what it reads. The input is up to four
// drawings, separated by lines "====" and saved as a.dxf, b.dxf, c.dxf and d.dxf side by side,
// so that references between them (relative, with "\" or "/", circular) are followed for real.
// a.dxf is read; a drawing that is read is written back and read again group for group; its
// reference graph is walked and must be a graph without cycles whose drawings are each one node.
#include "FuzzEnvironment.h"
#include "FuzzFailure.h"
#include "MemoryStreamBuf.h"

#include <QFile>

#include <OdDbDxfDatabase.h>
#include <OdDbXrefGraph.h>
#include <OdDxfReader.h>
#include <OdError.h>
#include <OdRxObjectImpl.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <vector>

namespace {
constexpr int kMaxDrawings = 4;

QString drawingPath(int index)
{
    return FuzzEnvironment::inputFolder() + QStringLiteral("/%1.dxf").arg(QChar('a' + index));
}

void saveDrawing(int index, const QByteArray& input, int from, int to)
{
    QFile file(drawingPath(index));
    if (file.open(QIODevice::WriteOnly) && to > from)
        file.write(input.constData() + from, to - from);
}

// The drawings of the input, always under the same names; a name the input does not fill is
// no file, as if the input's drawings were the only ones ever saved there. A line "====" ends
// a drawing (its line break goes with it), while there are names left for the next.
void saveDrawings(const QByteArray& input)
{
    int saved = 0;
    int drawingStart = 0;
    for (int lineStart = 0; lineStart <= input.size();) {
        int lineEnd = input.indexOf('\n', lineStart);
        if (lineEnd < 0)
            lineEnd = input.size();
        if (saved < kMaxDrawings - 1 && lineEnd - lineStart == 4 &&
            std::memcmp(input.constData() + lineStart, "====", 4) == 0) {
            saveDrawing(saved++, input, drawingStart, lineStart);
            drawingStart = lineEnd + 1;
        }
        lineStart = lineEnd + 1;
    }
    saveDrawing(saved++, input, drawingStart, input.size());
    while (saved < kMaxDrawings)
        QFile::remove(drawingPath(saved++));
}

// Written into memory and read from there, as the reader reads a file's bytes.
void checkWrittenBack(const OdDbDxfDatabase& database)
{
    const OdSmartPtr<MemoryStreamBuf> copy =
        OdRxObjectImpl<MemoryStreamBuf>::createObject(QStringLiteral("written.dxf"));
    database.writeFile(copy.get(), OdDb::kDxf, static_cast<OdDb::DwgVersion>(27));
    std::vector<OdDxfGroup> again;
    try {
        again = OdDxfReader::read(copy->bytes(), toQString(copy->fileName()));
    } catch (const OdError& error) {
        FuzzFailure::report(QStringLiteral("a written drawing cannot be read: ") + error.what());
    }
    if (again != database.groups())
        FuzzFailure::report(QStringLiteral("a drawing written back lost or changed groups"));
}

// Every edge leads to a node of the graph, no cycle, and no drawing twice.
void checkGraph(const OdDbXrefGraph& graph, OdDbDatabase* root)
{
    if (graph.numNodes() < 1 ||
        static_cast<OdDbXrefGraphNode*>(graph.rootNode())->database() != root)
        FuzzFailure::report(QStringLiteral("the root node is not the drawing walked"));
    std::vector<OdDbGraphNode*> nodes;
    std::set<QString> files;
    for (int i = 0; i < graph.numNodes(); ++i) {
        nodes.push_back(graph.node(i));
        const OdDbDatabase* database = graph.xrefNode(i)->database();
        if (database && !files.insert(toQString(database->getFilename())).second)
            FuzzFailure::report(QStringLiteral("a drawing is more than one node"));
    }
    // Colours of an iterative depth-first walk: 0 not seen, 1 on the path, 2 done.
    std::vector<int> colour(nodes.size(), 0);
    const auto indexOf = [&nodes](OdDbGraphNode* node) {
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (nodes[i] == node)
                return static_cast<int>(i);
        }
        FuzzFailure::report(QStringLiteral("an edge leads out of the graph"));
    };
    for (std::size_t start = 0; start < nodes.size(); ++start) {
        if (colour[start] != 0)
            continue;
        std::vector<std::pair<int, int>> path{{static_cast<int>(start), 0}};
        colour[start] = 1;
        while (!path.empty()) {
            auto& [node, next] = path.back();
            if (next == nodes[node]->numOut()) {
                colour[node] = 2;
                path.pop_back();
                continue;
            }
            const int target = indexOf(nodes[node]->out(next++));
            if (colour[target] == 1)
                FuzzFailure::report(QStringLiteral("the reference graph has a cycle"));
            if (colour[target] == 0) {
                colour[target] = 1;
                path.push_back({target, 0});
            }
        }
    }
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    saveDrawings(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    OdDbDxfDatabasePtr database;
    try {
        database = OdDbDxfDatabase::readFile(toOdString(drawingPath(0)));
    } catch (const OdError&) {
        return 0;
    }
    checkWrittenBack(*database);
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(database.get(), graph);
    checkGraph(graph, database.get());
    return 0;
}
