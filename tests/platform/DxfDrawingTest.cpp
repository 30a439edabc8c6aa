// Drawings of the reference platform: an ASCII DXF file is read into a database that keeps
// every group, written back through the system services exactly as it was read, and refused
// with a reason when it is not a drawing.
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <OdDbDatabase.h>
#include <OdError.h>
#include <OdRxSystemServices.h>

namespace {
OdString od(const QString& text)
{
    return OdString(text.toStdWString());
}

QString qt(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

class DxfDrawing : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QString writeFile(const QString& name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }

    static QByteArray contentOf(const QString& file)
    {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }

    QByteArray written(const OdDbDatabase& database, OdDb::SaveType type = OdDb::kDwg) const
    {
        const QString target = path(QStringLiteral("written.dxf"));
        {
            OdStreamBufPtr stream = odSystemServices()->createFile(
                od(target), Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways);
            database.writeFile(stream.get(), type, static_cast<OdDb::DwgVersion>(27), true, 16);
        }
        return contentOf(target);
    }

    static QString refusal(const QString& file)
    {
        try {
            OdDbDatabase::readFile(od(file));
        } catch (const OdError& error) {
            return qt(error.description());
        }
        return QStringLiteral("<read>");
    }

    QTemporaryDir m_folder;
};

TEST_F(DxfDrawing, DrawingMadeByEzdxfIsWrittenBackByteForByte)
{
    const QString demo = QStringLiteral(EC_SOURCE_DIR "/host/demo/plan.dxf");
    const OdDbDatabasePtr database = OdDbDatabase::readFile(od(demo));
    ASSERT_TRUE(database);
    EXPECT_EQ(qt(database->getFilename()), demo);
    EXPECT_GT(database->groups().size(), 1000u);
    EXPECT_EQ(written(*database), contentOf(demo));
    EXPECT_EQ(written(*database, OdDb::kDxf), contentOf(demo));
}

TEST_F(DxfDrawing, LineEndingsCommentsAndBlanksInValuesAreKept)
{
    const QByteArray content = "999\r\nmade by hand  \r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"
                               "  0\r\nTEXT\r\n  1\r\n  two  spaces  \r\n  0\r\nENDSEC\r\n"
                               "  0\r\nEOF\r\n";
    const OdDbDatabasePtr database =
        OdDbDatabase::readFile(od(writeFile(QStringLiteral("crlf.dxf"), content)));
    ASSERT_EQ(database->groups().size(), 7u);
    EXPECT_EQ(database->groups()[0].value(), QByteArray("made by hand  "));
    EXPECT_EQ(database->groups()[4].value(), QByteArray("  two  spaces  "));
    EXPECT_EQ(written(*database), content);
}

TEST_F(DxfDrawing, WhatIsNotAnAsciiDrawingIsRefusedWithTheReason)
{
    const struct
    {
        QByteArray content;
        const char* reason;
    } cases[] = {
        {"", "the file is empty"},
        {"AutoCAD Binary DXF\r\n\x1a", "binary DXF is not read"},
        {"hello\nworld\n", "line 1: 'hello' is not a group code"},
        {"  0\nSECTION\n  2\n", "line 3: group code 2 has no value"},
        {"  1\ntext\n  0\nEOF\n", "line 2: it does not begin with a SECTION"},
        {"  0\nSECTION\n  0\nENDSEC\n", "it ends without an EOF group"},
        {"  0\nSECTION\n  0\nEOF\nmore\n", "text after the EOF group"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.reason);
        const QString file = writeFile(QStringLiteral("bad.dxf"), each.content);
        const QString reason = refusal(file);
        EXPECT_TRUE(reason.startsWith(file + QStringLiteral(" is not a readable DXF drawing")))
            << reason.toStdString();
        EXPECT_TRUE(reason.contains(QLatin1String(each.reason))) << reason.toStdString();
    }
    EXPECT_TRUE(
        refusal(path(QStringLiteral("missing.dxf"))).contains(QStringLiteral("cannot open")));
    const QString padded =
        writeFile(QStringLiteral("padded.dxf"), "  0\nSECTION\n  0\nEOF\n\n  \x1a");
    EXPECT_EQ(OdDbDatabase::readFile(od(padded))->groups().size(), 2u)
        << "blank lines and an end-of-file mark after EOF are no content";
}

TEST_F(DxfDrawing, OnlyDrawingsAndAsciiExchangeFilesAreWritten)
{
    const OdDbDatabasePtr database =
        OdDbDatabase::readFile(od(QStringLiteral(EC_SOURCE_DIR "/host/demo/plan.dxf")));
    OdStreamBufPtr stream =
        odSystemServices()->createFile(od(path(QStringLiteral("binary.dxb"))), Oda::kFileWrite,
                                       Oda::kShareDenyNo, Oda::kCreateAlways);
    EXPECT_THROW(database->writeFile(stream.get(), OdDb::kDxb, static_cast<OdDb::DwgVersion>(27)),
                 OdError);
    EXPECT_THROW(database->writeFile(nullptr, OdDb::kDwg, static_cast<OdDb::DwgVersion>(27)),
                 OdError);
}

TEST_F(DxfDrawing, BlockRecordsCarryTheirReferencePathsOnlyWhenTheyAreReferences)
{
    const QByteArray content = "  0\nSECTION\n  2\nBLOCKS\n"
                               "  0\nBLOCK\n  2\nDOOR\n 70\n0\n  1\nignored.dxf\n  0\nENDBLK\n"
                               "  0\nBLOCK\n  2\nSITE\n 70\n20\n  3\nSITE\n  1\nsub/site.dxf\n"
                               "  0\nENDBLK\n  0\nENDSEC\n"
                               "  0\nSECTION\n  2\nENTITIES\n  0\nBLOCK\n  2\nNOT_A_BLOCK\n"
                               "  0\nENDSEC\n  0\nEOF\n";
    const OdDbDatabasePtr database =
        OdDbDatabase::readFile(od(writeFile(QStringLiteral("blocks.dxf"), content)));
    ASSERT_EQ(database->numBlockRecords(), 2);
    const OdDbBlockTableRecordPtr door =
        OdDbBlockTableRecord::cast(database->blockRecordId(0).openObject());
    const OdDbBlockTableRecordPtr site =
        OdDbBlockTableRecord::cast(database->blockRecordId(1).openObject());
    ASSERT_TRUE(door && site);
    EXPECT_EQ(qt(door->getName()), QStringLiteral("DOOR"));
    EXPECT_FALSE(door->isFromExternalReference());
    EXPECT_TRUE(door->pathName().isEmpty());
    EXPECT_EQ(qt(site->getName()), QStringLiteral("SITE"));
    EXPECT_EQ(site->flags(), 20);
    EXPECT_TRUE(site->isFromExternalReference());
    EXPECT_EQ(qt(site->pathName()), QStringLiteral("sub/site.dxf"));
    EXPECT_EQ(site->database(), database.get());
    EXPECT_TRUE(database->blockRecordId(2).isNull());
    EXPECT_FALSE(OdDbDatabase::cast(site.get()));
    EXPECT_EQ(OdDbDatabase::cast(database.get()), database);
}
} // namespace
