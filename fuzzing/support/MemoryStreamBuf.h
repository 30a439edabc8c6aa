#pragma once

#include <QByteArray>

#include <OdStreamBuf.h>

// A stream that a drawing is written into and that keeps the bytes in memory, so that writing
// a drawing back costs no file. Reading takes the bytes from the start, in order.
class MemoryStreamBuf : public OdStreamBuf
{
public:
    explicit MemoryStreamBuf(QString name);

    OdString fileName() override;
    std::uint64_t length() override;
    void getBytes(void* buffer, std::uint32_t count) override;
    void putBytes(const void* buffer, std::uint32_t count) override;

    const QByteArray& bytes() const { return m_bytes; }

private:
    QString m_name;
    QByteArray m_bytes;
    int m_read = 0;
};
