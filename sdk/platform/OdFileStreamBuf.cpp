#include "OdFileStreamBuf.h"

#include "OdError.h"
#include "OdEventLog.h"
#include "OdFileShareTable.h"
#include "OdRxObjectImpl.h"

#include <QFileInfo>

namespace {
bool isShareMode(unsigned share)
{
    return share == Oda::kShareDenyReadWrite || share == Oda::kShareDenyWrite ||
           share == Oda::kShareDenyRead || share == Oda::kShareDenyNo;
}

bool createsOrEmpties(unsigned disposition)
{
    return disposition != Oda::kOpenExisting;
}
} // namespace

OdStreamBufPtr OdFileStreamBuf::open(const QString& path, unsigned access, unsigned share,
                                     unsigned disposition)
{
    checkRequest(path, access, share, disposition);
    OdSmartPtr<OdFileStreamBuf> stream(new OdRxObjectImpl<OdFileStreamBuf>(path, access, share));
    if (!stream->m_file.open(openMode(access, disposition)))
        throw OdError(toOdString(
            QStringLiteral("cannot open %1: %2").arg(path, stream->m_file.errorString())));
    OdFileShareTable::instance().add(stream->m_key, access, share);
    return OdStreamBufPtr(stream);
}

void OdFileStreamBuf::checkRequest(const QString& path, unsigned access, unsigned share,
                                   unsigned disposition)
{
    const unsigned known = Oda::kFileRead | Oda::kFileWrite;
    if (access == 0 || (access & ~known) != 0)
        throw OdError(toOdString(
            QStringLiteral("cannot open %1: unknown access mode %2").arg(path).arg(access)));
    if (!isShareMode(share))
        throw OdError(toOdString(
            QStringLiteral("cannot open %1: unknown share mode %2").arg(path).arg(share)));
    if (disposition < Oda::kCreateNew || disposition > Oda::kTruncateExisting)
        throw OdError(toOdString(QStringLiteral("cannot open %1: unknown creation disposition %2")
                                     .arg(path)
                                     .arg(disposition)));
    if (createsOrEmpties(disposition) && !(access & Oda::kFileWrite))
        throw OdError(toOdString(
            QStringLiteral("cannot open %1: creating or emptying a file needs write access")
                .arg(path)));
    // A pipe would block the open or swallow what is written, a device would be read or
    // written as if it were a drawing: only regular files, or a name not yet taken, are files.
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        throw OdError(toOdString(QStringLiteral("cannot open %1: not a regular file").arg(path)));
    if (!OdFileShareTable::instance().admits(QFileInfo(path).absoluteFilePath(), access, share))
        throw OdError(toOdString(QStringLiteral("cannot open %1: the file is in use").arg(path)));
}

QIODevice::OpenMode OdFileStreamBuf::openMode(unsigned access, unsigned disposition)
{
    if (!(access & Oda::kFileWrite))
        return QIODevice::ReadOnly;
    // Read and write, so that a file opened without emptying it is not emptied by Qt.
    QIODevice::OpenMode mode = QIODevice::ReadWrite;
    if (disposition == Oda::kCreateNew)
        mode |= QIODevice::NewOnly;
    if (disposition == Oda::kOpenExisting || disposition == Oda::kTruncateExisting)
        mode |= QIODevice::ExistingOnly;
    if (disposition == Oda::kCreateAlways || disposition == Oda::kTruncateExisting)
        mode |= QIODevice::Truncate;
    return mode;
}

OdFileStreamBuf::OdFileStreamBuf(const QString& path, unsigned access, unsigned share)
    : m_file(path), m_key(QFileInfo(path).absoluteFilePath()), m_access(access), m_share(share)
{}

OdFileStreamBuf::~OdFileStreamBuf()
{
    if (!m_file.isOpen())
        return;
    m_file.close();
    OdFileShareTable::instance().remove(m_key, m_access, m_share);
    if (m_access & Oda::kFileWrite)
        OdEventLog::report(QStringLiteral("file-written"), {{QStringLiteral("path"), m_key}});
}

OdString OdFileStreamBuf::fileName()
{
    return toOdString(m_key);
}

std::uint64_t OdFileStreamBuf::length()
{
    return static_cast<std::uint64_t>(m_file.size());
}

void OdFileStreamBuf::getBytes(void* buffer, std::uint32_t count)
{
    if (!(m_access & Oda::kFileRead))
        fail(QStringLiteral("it was opened for writing only"));
    const qint64 read = m_file.read(static_cast<char*>(buffer), count);
    if (read != static_cast<qint64>(count))
        fail(read < 0 ? m_file.errorString() : QStringLiteral("reading past its end"));
}

void OdFileStreamBuf::putBytes(const void* buffer, std::uint32_t count)
{
    if (!(m_access & Oda::kFileWrite))
        fail(QStringLiteral("it was opened for reading only"));
    if (m_file.write(static_cast<const char*>(buffer), count) != static_cast<qint64>(count) ||
        !m_file.flush())
        fail(m_file.errorString());
}

void OdFileStreamBuf::fail(const QString& what) const
{
    throw OdError(toOdString(QStringLiteral("%1: %2").arg(m_key, what)));
}
