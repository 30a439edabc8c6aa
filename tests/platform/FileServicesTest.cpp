// The platform's file creation: the access, share and creation-disposition values as the
// platform has always defined them, a written file reported once it is closed, and OdError
// for every request that cannot be carried out.
#include "EventRecorder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <OdError.h>
#include <OdRxSystemServices.h>

namespace {
OdString od(const QString& text)
{
    return OdString(text.toStdWString());
}

class FileServices : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    void writeFile(const QString& name, const QByteArray& content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray contentOf(const QString& name) const
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
};

TEST_F(FileServices, WritingWithTheHostsValuesReplacesTheFileAndReportsItWhenClosed)
{
    writeFile(QStringLiteral("plan.dxf"), "an older and longer content");
    EventRecorder events;
    OdStreamBufPtr stream = create(path(QStringLiteral("plan.dxf")), 1073741824, 64, 2);
    put(stream, "new");
    EXPECT_EQ(events.events().count(QStringLiteral("file-written")), 0)
        << "not before it is closed";
    stream.release();
    EXPECT_EQ(contentOf(QStringLiteral("plan.dxf")), QByteArray("new"));
    EXPECT_EQ(events.events().values(QStringLiteral("file-written"), QStringLiteral("path")),
              QStringList{path(QStringLiteral("plan.dxf"))});

    create(path(QStringLiteral("plan.dxf")), Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting)
        .release();
    EXPECT_EQ(events.events().count(QStringLiteral("file-written")), 1) << "reading writes nothing";
}

TEST_F(FileServices, CreationDispositionsFollowTheirWindowsMeaning)
{
    writeFile(QStringLiteral("old"), "kept");
    const unsigned write = Oda::kFileWrite;
    EXPECT_THROW(create(path(QStringLiteral("old")), write, 64, Oda::kCreateNew), OdError);
    EXPECT_THROW(create(path(QStringLiteral("none")), write, 64, Oda::kOpenExisting), OdError);
    EXPECT_THROW(create(path(QStringLiteral("none")), write, 64, Oda::kTruncateExisting), OdError);
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("none"))));

    create(path(QStringLiteral("old")), write, 64, Oda::kOpenAlways).release();
    EXPECT_EQ(contentOf(QStringLiteral("old")), QByteArray("kept"));
    create(path(QStringLiteral("old")), write, 64, Oda::kOpenExisting).release();
    EXPECT_EQ(contentOf(QStringLiteral("old")), QByteArray("kept"));
    put(create(path(QStringLiteral("fresh")), write, 64, Oda::kOpenAlways), "made");
    EXPECT_EQ(contentOf(QStringLiteral("fresh")), QByteArray("made"));
    put(create(path(QStringLiteral("new")), write, 64, Oda::kCreateNew), "made");
    EXPECT_EQ(contentOf(QStringLiteral("new")), QByteArray("made"));
    create(path(QStringLiteral("old")), write, 64, Oda::kTruncateExisting).release();
    EXPECT_EQ(contentOf(QStringLiteral("old")), QByteArray());
}

TEST_F(FileServices, AStreamDoesOnlyWhatItsAccessAllows)
{
    writeFile(QStringLiteral("data"), "abc");
    char buffer[4] = {};
    OdStreamBufPtr reading =
        create(path(QStringLiteral("data")), Oda::kFileRead, 64, Oda::kOpenExisting);
    EXPECT_EQ(reading->length(), 3u);
    reading->getBytes(buffer, 3);
    EXPECT_EQ(QByteArray(buffer, 3), QByteArray("abc"));
    EXPECT_THROW(reading->getBytes(buffer, 1), OdError) << "past the end";
    EXPECT_THROW(put(reading, "x"), OdError);
    reading.release();

    OdStreamBufPtr writing =
        create(path(QStringLiteral("data")), Oda::kFileWrite, 64, Oda::kOpenExisting);
    EXPECT_THROW(writing->getBytes(buffer, 1), OdError);
    writing.release();

    EXPECT_THROW(create(path(QStringLiteral("other")), Oda::kFileRead, 64, Oda::kCreateAlways),
                 OdError)
        << "creating needs write access";
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("other"))));
}

TEST_F(FileServices, SharingIsHonouredAmongTheOpenStreams)
{
    writeFile(QStringLiteral("shared"), "abc");
    const QString file = path(QStringLiteral("shared"));
    OdStreamBufPtr guarded = create(file, Oda::kFileRead, Oda::kShareDenyWrite, Oda::kOpenExisting);
    EXPECT_THROW(create(file, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kOpenExisting), OdError);
    EXPECT_NO_THROW(create(file, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting));
    EXPECT_THROW(create(file, Oda::kFileRead, Oda::kShareDenyRead, Oda::kOpenExisting), OdError)
        << "a new stream may not deny what an open one does";
    guarded.release();
    EXPECT_NO_THROW(create(file, Oda::kFileWrite, Oda::kShareDenyReadWrite, Oda::kOpenExisting));
}

TEST_F(FileServices, RequestsThatCannotBeCarriedOutThrowWithTheReason)
{
    EventRecorder events;
    const QString unreachable = path(QStringLiteral("no/such/folder/plan.dxf"));
    try {
        create(unreachable, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways);
        ADD_FAILURE() << "created a file in a folder that does not exist";
    } catch (const OdError& error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(unreachable)) << error.what();
    }
    EXPECT_THROW(create(m_folder.path(), Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways),
                 OdError)
        << "a folder is not a file";
    EXPECT_THROW(create(path(QStringLiteral("x")), 0, 64, 2), OdError);
    EXPECT_THROW(create(path(QStringLiteral("x")), 0x20000000u, 64, 2), OdError);
    EXPECT_THROW(create(path(QStringLiteral("x")), Oda::kFileWrite, 0x50, 2), OdError);
    EXPECT_THROW(create(path(QStringLiteral("x")), Oda::kFileWrite, 64, 6), OdError);
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("x"))));
    EXPECT_EQ(events.events().count(QStringLiteral("file-written")), 0);
}
} // namespace
