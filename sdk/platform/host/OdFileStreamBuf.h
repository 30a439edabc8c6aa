#pragma once

#include "OdFileModes.h"
#include "OdStreamBuf.h"

#include <QFile>

// A stream on a file of the local file system, made by OdRxSystemServices::createFile.
class OdFileStreamBuf : public OdStreamBuf
{
public:
    // Opens `path` as the system services promise to; throws OdError when it cannot.
    static OdStreamBufPtr open(const QString& path, unsigned access, unsigned share,
                               unsigned disposition);
    ~OdFileStreamBuf() override;

    OdString fileName() override;
    std::uint64_t length() override;
    void getBytes(void* buffer, std::uint32_t count) override;
    void putBytes(const void* buffer, std::uint32_t count) override;

protected:
    OdFileStreamBuf(const QString& path, unsigned access, unsigned share);

private:
    static void checkRequest(const QString& path, unsigned access, unsigned share,
                             unsigned disposition);
    static QIODevice::OpenMode openMode(unsigned access, unsigned disposition);
    [[noreturn]] void fail(const QString& what) const;

    QFile m_file;
    QString m_key;
    unsigned m_access;
    unsigned m_share;
};
