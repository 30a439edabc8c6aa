// The platform's file creation with the Windows access, share and creation-disposition values.
#include "EventRecorder.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <OdError.h>
#include <OdRxSystemServices.h>
#include <sys/stat.h>

namespace {
class FileServices : public ::testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void writeFile(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray contentOf(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }

    static OdStreamBufPtr create(const QString& file, unsigned access, unsigned share,
                                 unsigned disposition)
    {
        return odSystemServices()->createFile(
            od(file), static_cast<Oda::FileAccessMode>(access),
            static_cast<Oda::FileShareMode>(share),
            static_cast<Oda::FileCreationDisposition>(disposition));
    }

    static void put(const OdStreamBufPtr& stream, const QByteArray& bytes)
    {
        stream->putBytes(bytes.constData(), static_cast<std::uint32_t>(bytes.size()));
    }

    QTemporaryDir m_folder;
    EventRecorder m_events;
};

TEST_F(FileServices, RequestsAreCarriedOutAsTheirWindowsValuesSayOrRefusedWithTheReason)
{
    const unsigned write = Oda::kFileWrite;
    const struct
    {
        const char* file;
        unsigned access, share, disposition;
        bool exists;       // the file holds "kept" before
        const char* after; // its content after writing "new"; null: refused
    } cases[] = {
        // 1 create new, 2 create always, 3 open existing, 4 open always, 5 truncate existing;
        // 1073741824 and 64 are the values the module writes its copy with.
        {"f", write, 64, 1, true, nullptr},
        {"f", write, 64, 1, false, "new"},
        {"f", 1073741824, 64, 2, true, "new"},
        {"f", write, 64, 2, false, "new"},
        {"f", write, 64, 3, true, "newt"},
        {"f", write, 64, 3, false, nullptr},
        {"f", write, 64, 4, true, "newt"},
        {"f", write, 64, 4, false, "new"},
        {"f", write, 64, 5, true, "new"},
        {"f", write, 64, 5, false, nullptr},
        {"no/such/folder/f", write, 64, 2, false, nullptr},
        {".", write, 64, 2, false, nullptr},
        {"f", 0, 64, 2, false, nullptr},
        {"f", 0x20000000u, 64, 2, false, nullptr},
        {"f", write, 0x50, 2, false, nullptr},
        {"f", write, 64, 6, false, nullptr},
        {"f", Oda::kFileRead, 64, 2, false, nullptr}};
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.file << ' ' << each.access << ' ' << each.share
                                        << ' ' << each.disposition << ' ' << each.exists);
        QFile::remove(path("f"));
        if (each.exists)
            writeFile(each.file, "kept");
        try {
            put(create(path(each.file), each.access, each.share, each.disposition), "new");
            EXPECT_EQ(contentOf(each.file), QByteArray(each.after));
        } catch (const OdError& error) {
            EXPECT_EQ(each.after, nullptr) << error.what();
            EXPECT_TRUE(QString::fromUtf8(error.what()).contains(path(each.file))) << error.what();
            EXPECT_EQ(contentOf(each.file), each.exists ? QByteArray("kept") : "<none>");
        }
    }
}

TEST_F(FileServices, AccessAndSharingAreHonouredAndAWrittenFileIsReportedWhenClosed)
{
    writeFile("data", "abc");
    char buffer[4] = {};
    OdStreamBufPtr reading = create(path("data"), Oda::kFileRead, Oda::kShareDenyWrite, 3);
    reading->getBytes(buffer, 3);
    EXPECT_EQ(QByteArray(buffer, 3), QByteArray("abc"));
    EXPECT_THROW(put(reading, "x"), OdError);
    EXPECT_THROW(create(path("data"), Oda::kFileWrite, Oda::kShareDenyNo, 3), OdError);
    EXPECT_NO_THROW(create(path("data"), Oda::kFileRead, Oda::kShareDenyNo, 3));
    EXPECT_THROW(create(path("data"), Oda::kFileRead, Oda::kShareDenyRead, 3), OdError)
        << "a new stream may not deny what an open one does";
    reading.release();
    EXPECT_EQ(m_events.events().count(QStringLiteral("file-written")), 0);

    OdStreamBufPtr writing = create(path("data"), Oda::kFileWrite, Oda::kShareDenyReadWrite, 3);
    EXPECT_THROW(writing->getBytes(buffer, 1), OdError);
    EXPECT_THROW(create(path("data"), Oda::kFileRead, Oda::kShareDenyNo, 3), OdError);
    EXPECT_EQ(m_events.events().count(QStringLiteral("file-written")), 0) << "not before closing";
    writing.release();
    EXPECT_EQ(m_events.events().values(QStringLiteral("file-written"), QStringLiteral("path")),
              QStringList{path("data")});
}

// A pipe or a device under the file's name is never written into, whatever the disposition:
// what went into a pipe would be lost, and a larger write would block for ever.
TEST_F(FileServices, WhatIsNotARegularFileIsRefusedForEveryRequest)
{
    ASSERT_EQ(::mkfifo(qPrintable(path("pipe.dxf")), 0600), 0);
    for (const QString& file : {path("pipe.dxf"), QStringLiteral("/dev/null")}) {
        for (unsigned disposition = Oda::kCreateNew; disposition <= Oda::kTruncateExisting;
             ++disposition) {
            SCOPED_TRACE(testing::Message() << qPrintable(file) << ' ' << disposition);
            try {
                put(create(file, Oda::kFileWrite, Oda::kShareDenyNo, disposition), "new");
                ADD_FAILURE() << "written";
            } catch (const OdError& error) {
                EXPECT_TRUE(QString::fromUtf8(error.what()).contains(file)) << error.what();
            }
        }
    }
    EXPECT_EQ(m_events.events().count(QStringLiteral("file-written")), 0);
}
} // namespace
