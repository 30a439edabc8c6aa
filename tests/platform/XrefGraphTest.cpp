// The external-reference graph: built across files from the block records that are
// references, with relative paths taken from the referring drawing's folder, one node per
// drawing, no cycles, and a node without a database for a file that is not there.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPair>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <OdDbXrefGraph.h>

namespace {
using Reference = QPair<QString, QString>;

QString qt(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

class XrefGraph : public ::testing::Test
{
protected:
    // Writes a drawing whose blocks are a plain one and a reference for each of `references`
    // (block name, path as the drawing holds it).
    QString drawing(const QString& name, const QList<Reference>& references = {}) const
    {
        QByteArray content = "  0\nSECTION\n  2\nBLOCKS\n"
                             "  0\nBLOCK\n  2\n*Model_Space\n 70\n0\n  0\nENDBLK\n";
        for (const Reference& reference : references)
            content += "  0\nBLOCK\n  2\n" + reference.first.toUtf8() + "\n 70\n20\n  1\n" +
                       reference.second.toUtf8() + "\n  0\nENDBLK\n";
        content += "  0\nENDSEC\n  0\nEOF\n";
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    static OdDbDatabasePtr read(const QString& path)
    {
        return OdDbDatabase::readFile(OdString(path.toStdWString()));
    }

    // The drawing a node stands for: its file when it was read, else "missing:" and the path
    // its block record holds.
    static QString describe(const OdDbGraphNode* node)
    {
        const auto* xref = dynamic_cast<const OdDbXrefGraphNode*>(node);
        if (!xref)
            return QStringLiteral("<not a reference node>");
        if (xref->database())
            return QFileInfo(qt(xref->database()->getFilename())).fileName();
        const OdDbBlockTableRecordPtr record =
            OdDbBlockTableRecord::cast(xref->btrId().openObject());
        return QStringLiteral("missing:") + (record ? qt(record->pathName()) : QString());
    }

    static QStringList referencesOf(const OdDbGraphNode* node)
    {
        QStringList names;
        for (int index = 0; index < node->numOut(); ++index)
            names << describe(node->out(index));
        return names;
    }

    QTemporaryDir m_folder;
};

TEST_F(XrefGraph, ReferencesAreFollowedAcrossFilesFromTheReferringDrawingsFolder)
{
    const QString main = drawing(QStringLiteral("main.dxf"),
                                 {{QStringLiteral("A"), QStringLiteral("parts/a.dxf")},
                                  {QStringLiteral("GONE"), QStringLiteral("missing.dxf")}});
    drawing(QStringLiteral("parts/a.dxf"),
            {{QStringLiteral("B"), QStringLiteral("..\\shared\\b.dxf")},
             {QStringLiteral("C"), m_folder.filePath(QStringLiteral("c.dxf"))}});
    drawing(QStringLiteral("shared/b.dxf"));
    drawing(QStringLiteral("c.dxf"));

    const OdDbDatabasePtr database = read(main);
    OdDbXrefGraph graph;
    ASSERT_EQ(OdDbXrefGraph::getFrom(database.get(), graph), eOk);
    ASSERT_EQ(graph.numNodes(), 5);
    const OdDbGraphNode* root = graph.rootNode();
    EXPECT_EQ(graph.xrefNode(0)->database(), database.get());
    EXPECT_TRUE(graph.xrefNode(0)->btrId().isNull());
    EXPECT_EQ(referencesOf(root),
              (QStringList{QStringLiteral("a.dxf"), QStringLiteral("missing:missing.dxf")}));
    EXPECT_EQ(referencesOf(root->out(0)),
              (QStringList{QStringLiteral("b.dxf"), QStringLiteral("c.dxf")}));
    EXPECT_EQ(root->out(1)->numOut(), 0);
    EXPECT_EQ(root->out(0)->out(0)->numOut(), 0);

    const OdDbBlockTableRecordPtr record =
        OdDbBlockTableRecord::cast(graph.xrefNode(1)->btrId().openObject());
    ASSERT_TRUE(record);
    EXPECT_EQ(qt(record->getName()), QStringLiteral("A"));
    EXPECT_EQ(record->database(), database.get()) << "the record of the drawing that refers";
}

TEST_F(XrefGraph, CircularReferencesAreLeftOutAndADrawingReachedTwiceIsOneNode)
{
    const QString main = drawing(QStringLiteral("main.dxf"),
                                 {{QStringLiteral("A"), QStringLiteral("a.dxf")},
                                  {QStringLiteral("B"), QStringLiteral("b.dxf")},
                                  {QStringLiteral("SELF"), QStringLiteral("./main.dxf")}});
    drawing(QStringLiteral("a.dxf"), {{QStringLiteral("B"), QStringLiteral("b.dxf")},
                                      {QStringLiteral("BACK"), QStringLiteral("main.dxf")}});
    drawing(QStringLiteral("b.dxf"), {{QStringLiteral("A"), QStringLiteral("sub/../a.dxf")}});

    OdDbXrefGraph graph;
    ASSERT_EQ(OdDbXrefGraph::getFrom(read(main).get(), graph), eOk);
    ASSERT_EQ(graph.numNodes(), 3);
    const OdDbGraphNode* root = graph.rootNode();
    const OdDbGraphNode* a = root->out(0);
    EXPECT_EQ(referencesOf(root), (QStringList{QStringLiteral("a.dxf"), QStringLiteral("b.dxf")}));
    EXPECT_EQ(referencesOf(a), QStringList{QStringLiteral("b.dxf")});
    EXPECT_EQ(a->out(0), root->out(1)) << "b.dxf is one node";
    EXPECT_EQ(a->out(0)->numOut(), 0) << "b.dxf's reference back to a.dxf is circular";
}

TEST_F(XrefGraph, NoDatabaseGivesAnEmptyGraph)
{
    OdDbXrefGraph graph;
    ASSERT_EQ(OdDbXrefGraph::getFrom(read(drawing(QStringLiteral("x.dxf"))).get(), graph), eOk);
    EXPECT_EQ(graph.numNodes(), 1);
    EXPECT_EQ(graph.rootNode()->numOut(), 0);
    EXPECT_EQ(OdDbXrefGraph::getFrom(nullptr, graph), eNullObjectPointer);
    EXPECT_EQ(graph.numNodes(), 0);
    EXPECT_EQ(graph.rootNode(), nullptr);
}
} // namespace
