// Drawings of the reference platform: an ASCII DXF file is read into a database that keeps
// every group, written back exactly as it was read, and refused with a reason otherwise.
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <OdDbDxfDatabase.h>
#include <OdError.h>
#include <OdRxSystemServices.h>

namespace {
class DxfDrawing : public ::testing::Test
{
protected:
    QString writeFile(const QString& name, const QByteArray& content) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    static QByteArray contentOf(const QString& file)
    {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }

    QByteArray written(const OdDbDxfDatabase& database, OdDb::SaveType type) const
    {
        const QString target = m_folder.filePath(QStringLiteral("written.dxf"));
        database.writeFile(
            odSystemServices()
                ->createFile(od(target), Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways)
                .get(),
            type, static_cast<OdDb::DwgVersion>(27), true, 16);
        return contentOf(target);
    }

    QTemporaryDir m_folder;
};

TEST_F(DxfDrawing, DrawingsAreWrittenBackAsTheyWereRead)
{
    // A drawing made by ezdxf, one by hand with Windows line ends, a comment and blanks.
    const QString handMade = writeFile(
        QStringLiteral("crlf.dxf"), "999\r\nmade by hand  \r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"
                                    "  0\r\nTEXT\r\n  1\r\n  two  spaces  \r\n  0\r\nENDSEC\r\n"
                                    "  0\r\nEOF\r\n");
    // With Unix line ends, a carriage return at the end of a value is the value's own.
    const QString trailingReturns = writeFile(
        QStringLiteral("lf.dxf"), "  0\nSECTION\n  2\nENTITIES\n  0\nTEXT\n  1\nreturns\r\r\n"
                                  "  0\nENDSEC\n  0\nEOF\n");
    for (const QString& source :
         {QStringLiteral(EC_SOURCE_DIR "/host/demo/plan.dxf"), handMade, trailingReturns}) {
        SCOPED_TRACE(source.toStdString());
        const OdDbDxfDatabasePtr database = OdDbDxfDatabase::readFile(od(source));
        ASSERT_TRUE(database);
        EXPECT_EQ(qt(database->getFilename()), source);
        EXPECT_EQ(written(*database, OdDb::kDwg), contentOf(source));
        EXPECT_EQ(written(*database, OdDb::kDxf), contentOf(source));
        EXPECT_THROW(written(*database, OdDb::kDxb), OdError);
    }
}

struct NotADrawing
{
    const char* name;
    QByteArray content;
    const char* reason;
};

// How failures and CTest name the case.
void PrintTo(const NotADrawing& each, std::ostream* out)
{
    *out << each.name;
}

class DxfDrawingRefused : public DxfDrawing, public ::testing::WithParamInterface<NotADrawing>
{};

TEST_P(DxfDrawingRefused, WithTheReason)
{
    const QString file = writeFile(QStringLiteral("bad.dxf"), GetParam().content);
    try {
        OdDbDxfDatabase::readFile(od(file));
        ADD_FAILURE() << "read: " << GetParam().reason;
    } catch (const OdError& error) {
        EXPECT_EQ(qt(error.description()),
                  file + QStringLiteral(" is not a readable DXF drawing: ") + GetParam().reason);
    }
}

INSTANTIATE_TEST_SUITE_P(
    WhatIsNotAnAsciiDrawing, DxfDrawingRefused,
    ::testing::Values(
        NotADrawing{"Empty", "", "the file is empty"},
        NotADrawing{"BinaryDxf", "AutoCAD Binary DXF\r\n\x1a",
                    "binary DXF is not read, only ASCII DXF"},
        NotADrawing{"NotAGroupCode", "hello\nworld\n", "line 1: 'hello' is not a group code"},
        NotADrawing{"GroupCodeWithoutValue", "  0\nSECTION\n  2\n",
                    "line 3: group code 2 has no value"},
        NotADrawing{"NoSectionFirst", "  1\ntext\n  0\nEOF\n",
                    "line 2: it does not begin with a SECTION"},
        NotADrawing{"NoEof", "  0\nSECTION\n  0\nENDSEC\n", "it ends without an EOF group"},
        NotADrawing{"TextAfterEof", "  0\nSECTION\n  0\nEOF\nmore\n",
                    "line 5: text after the EOF group"}));
} // namespace
