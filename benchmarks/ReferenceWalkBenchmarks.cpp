// The reference walk over generated drawing trees: a drawing that references `fanOut`
// drawings, each of which references the next level's, `depth` levels deep; every drawing
// carries an entity section of about `entityKilobytes`, which the walk should not read.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <OdDbDxfDatabase.h>
#include <OdDbXrefGraph.h>
#include <benchmark/benchmark.h>

namespace {
QByteArray entities(int kilobytes)
{
    QByteArray section = "  0\nSECTION\n  2\nENTITIES\n";
    const QByteArray line = "  0\nLINE\n  8\n0\n 10\n1.0\n 20\n2.0\n 11\n3.0\n 21\n4.0\n";
    while (section.size() < kilobytes * 1024)
        section += line;
    return section + "  0\nENDSEC\n";
}

QByteArray drawing(const QStringList& references, const QByteArray& entitySection)
{
    QByteArray content = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1027\n  0\nENDSEC\n"
                         "  0\nSECTION\n  2\nBLOCKS\n";
    for (int i = 0; i < references.size(); ++i)
        content += "  0\nBLOCK\n  2\nREF" + QByteArray::number(i) + "\n 70\n4\n  1\n" +
                   references[i].toUtf8() + "\n  0\nENDBLK\n";
    return content + "  0\nENDSEC\n" + entitySection + "  0\nEOF\n";
}

// Writes the tree into `folder`; returns the number of drawings referenced.
int writeTree(const QString& folder, int fanOut, int depth, int entityKilobytes)
{
    const QByteArray entitySection = entities(entityKilobytes);
    int written = 0;
    // Drawing "L-I" at level L references "(L+1)-(I*fanOut+k)".
    int width = 1;
    for (int level = 0; level <= depth; ++level, width *= fanOut) {
        for (int i = 0; i < width; ++i) {
            QStringList references;
            for (int k = 0; level < depth && k < fanOut; ++k)
                references << QStringLiteral("%1-%2.dxf").arg(level + 1).arg(i * fanOut + k);
            QFile file(QStringLiteral("%1/%2-%3.dxf").arg(folder).arg(level).arg(i));
            if (!file.open(QIODevice::WriteOnly))
                return -1;
            file.write(drawing(references, entitySection));
            written += level > 0 ? 1 : 0;
        }
    }
    return written;
}

void ReferenceWalk(benchmark::State& state)
{
    QTemporaryDir folder;
    const int referenced =
        writeTree(folder.path(), static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                  static_cast<int>(state.range(2)));
    const OdDbDatabasePtr root = OdDbDxfDatabase::readFile(toOdString(folder.filePath("0-0.dxf")));
    for (auto _ : state) {
        OdDbXrefGraph graph;
        OdDbXrefGraph::getFrom(root.get(), graph);
        if (graph.numNodes() != referenced + 1)
            state.SkipWithError("the walk missed drawings");
    }
    state.counters["drawings"] = referenced;
    state.SetItemsProcessed(state.iterations() * referenced);
}
BENCHMARK(ReferenceWalk)
    ->ArgNames({"fan_out", "depth", "entity_kb"})
    ->Args({200, 1, 16})
    ->Args({200, 1, 512})
    ->Args({6, 3, 64})
    ->Args({1, 2000, 1})
    ->Unit(benchmark::kMillisecond);
} // namespace
