// The external-reference graph, built across files from the block records that are references.
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <OdDbBlockTableRecord.h>
#include <OdDbDxfDatabase.h>
#include <OdDbXrefGraph.h>

#include <memory>

namespace {
// The drawing a node stands for: its file when it was read, else "missing:" and the path that
// its block record holds.
QString describe(const OdDbGraphNode* node)
{
    const auto* xref = dynamic_cast<const OdDbXrefGraphNode*>(node);
    if (xref && xref->database())
        return QFileInfo(qt(xref->database()->getFilename())).fileName();
    const OdDbBlockTableRecordPtr record =
        xref ? OdDbBlockTableRecord::cast(xref->btrId().openObject()) : OdDbBlockTableRecordPtr();
    return record ? QStringLiteral("missing:") + qt(record->pathName()) : QStringLiteral("?");
}

QStringList referencesOf(const OdDbGraphNode* node)
{
    QStringList names;
    for (int index = 0; index < node->numOut(); ++index)
        names << describe(node->out(index));
    return names;
}

TEST(XrefGraph, FollowsReferencesAcrossFilesOnceEachAndWithoutCycles)
{
    QTemporaryDir folder;
    // Writes a drawing with a plain block that holds a path, and a reference block for each
    // block name and path.
    const auto drawing = [&folder](const QString& name, const QStringList& references) {
        QByteArray content = "  0\nSECTION\n  2\nBLOCKS\n"
                             "  0\nBLOCK\n  2\nPLAIN\n 70\n0\n  1\nplain.dxf\n  0\nENDBLK\n";
        for (int i = 0; i + 1 < references.size(); i += 2)
            content += "  0\nBLOCK\n  2\n" + references[i].toUtf8() + "\n 70\n20\n  1\n" +
                       references[i + 1].toUtf8() + "\n  0\nENDBLK\n";
        QDir().mkpath(QFileInfo(folder.filePath(name)).absolutePath());
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content + "  0\nENDSEC\n  0\nEOF\n");
        return file.fileName();
    };
    drawing("plain.dxf", {});
    const QString main =
        drawing("main.dxf", {"A", "parts/a.dxf", "GONE", "missing.dxf", "SELF", "./main.dxf"});
    drawing("parts/a.dxf",
            {"B", "..\\shared\\b.dxf", "C", folder.filePath("c.dxf"), "BACK", "../main.dxf"});
    drawing("shared/b.dxf", {"A", "../parts/a.dxf", "C", "../c.dxf"});
    drawing("c.dxf", {});

    const OdDbDatabasePtr database = OdDbDxfDatabase::readFile(od(main));
    OdDbXrefGraph graph;
    ASSERT_EQ(OdDbXrefGraph::getFrom(database.get(), graph), eOk);
    ASSERT_EQ(graph.numNodes(), 5);
    const OdDbGraphNode* root = graph.rootNode();
    EXPECT_EQ(graph.xrefNode(0)->database(), database.get()) << "the drawing is the root";
    EXPECT_EQ(referencesOf(root), QStringList({"a.dxf", "missing:missing.dxf"}));
    EXPECT_EQ(root->out(1)->numOut(), 0);
    const OdDbGraphNode* a = root->out(0);
    EXPECT_EQ(referencesOf(a), QStringList({"b.dxf", "c.dxf"})) << "the way back to main.dxf";
    EXPECT_EQ(referencesOf(a->out(0)), QStringList({"c.dxf"})) << "the way back to a.dxf";
    EXPECT_EQ(a->out(0)->out(0), a->out(1)) << "c.dxf is one node";
    EXPECT_EQ(a->out(1)->numOut(), 0);
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    file.write(content);
}

QByteArray referencing(const QByteArray& path)
{
    return "  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  2\nNEXT\n 70\n4\n  1\n" + path +
           "\n  0\nENDBLK\n  0\nENDSEC\n";
}

// A walk that recursed once per drawing would need several megabytes of stack for this chain;
// the walk runs on a thread with a small stack, so any recursion per drawing overflows it.
TEST(XrefGraph, WalksAChainDeeperThanTheStackWouldHoldRecursively)
{
    constexpr int kLength = 8000;
    constexpr uint kStackBytes = 512 * 1024;
    QTemporaryDir folder;
    for (int i = 0; i < kLength; ++i) {
        const QByteArray next = QByteArray::number(i + 1) + ".dxf";
        writeFile(folder.filePath(QString::number(i) + ".dxf"),
                  i + 1 < kLength
                      ? referencing(next) + "  0\nEOF\n"
                      : QByteArray("  0\nSECTION\n  2\nBLOCKS\n  0\nENDSEC\n  0\nEOF\n"));
    }
    int nodes = 0;
    int depth = 0;
    QString last;
    std::unique_ptr<QThread> walker(QThread::create([&] {
        const OdDbDatabasePtr database = OdDbDxfDatabase::readFile(od(folder.filePath("0.dxf")));
        OdDbXrefGraph graph;
        if (OdDbXrefGraph::getFrom(database.get(), graph) != eOk)
            return;
        nodes = graph.numNodes();
        const OdDbGraphNode* node = graph.rootNode();
        for (; node->numOut() == 1; ++depth)
            node = node->out(0);
        last = describe(node);
    }));
    walker->setStackSize(kStackBytes);
    walker->start();
    walker->wait();
    ASSERT_EQ(nodes, kLength);
    EXPECT_EQ(depth, kLength - 1) << "each drawing references the next one, down to the last";
    EXPECT_EQ(last, QStringLiteral("%1.dxf").arg(kLength - 1));
}

// A referenced drawing is read as far as its block definitions: what follows them is never
// looked at, so a huge or damaged entity section costs nothing; damage before them makes
// the drawing unreadable, as it always did.
TEST(XrefGraph, ReadsOfAReferencedDrawingOnlyWhatNamesItsReferences)
{
    QTemporaryDir folder;
    writeFile(folder.filePath("leaf.dxf"), "  0\nSECTION\n  2\nBLOCKS\n  0\nENDSEC\n  0\nEOF\n");
    writeFile(folder.filePath("damaged-after.dxf"),
              "  0\nSECTION\n  2\nHEADER\n  0\nENDSEC\n" + referencing("leaf.dxf") +
                  "  0\nSECTION\n  2\nENTITIES\nnot a group code\n");
    writeFile(folder.filePath("damaged-before.dxf"),
              "  0\nSECTION\n  2\nHEADER\nnot a group code\n" + referencing("leaf.dxf"));
    writeFile(folder.filePath("root.dxf"),
              "  0\nSECTION\n  2\nBLOCKS\n"
              "  0\nBLOCK\n  2\nA\n 70\n4\n  1\ndamaged-after.dxf\n  0\nENDBLK\n"
              "  0\nBLOCK\n  2\nB\n 70\n4\n  1\ndamaged-before.dxf\n  0\nENDBLK\n"
              "  0\nENDSEC\n  0\nEOF\n");
    const OdDbDatabasePtr database = OdDbDxfDatabase::readFile(od(folder.filePath("root.dxf")));
    OdDbXrefGraph graph;
    ASSERT_EQ(OdDbXrefGraph::getFrom(database.get(), graph), eOk);
    const OdDbGraphNode* root = graph.rootNode();
    ASSERT_EQ(referencesOf(root), QStringList({"damaged-after.dxf", "missing:damaged-before.dxf"}));
    EXPECT_EQ(referencesOf(root->out(0)), QStringList({"leaf.dxf"}));
    EXPECT_EQ(root->out(1)->numOut(), 0);
}
} // namespace
