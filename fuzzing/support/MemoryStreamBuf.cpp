#include "MemoryStreamBuf.h"

#include <OdError.h>

#include <cstring>

MemoryStreamBuf::MemoryStreamBuf(QString name) : m_name(std::move(name)) {}

OdString MemoryStreamBuf::fileName()
{
    return toOdString(m_name);
}

std::uint64_t MemoryStreamBuf::length()
{
    return static_cast<std::uint64_t>(m_bytes.size());
}

void MemoryStreamBuf::getBytes(void* buffer, std::uint32_t count)
{
    if (count > static_cast<std::uint32_t>(m_bytes.size() - m_read))
        throw OdError(toOdString(m_name + QStringLiteral(": read past the end")));
    std::memcpy(buffer, m_bytes.constData() + m_read, count);
    m_read += static_cast<int>(count);
}

void MemoryStreamBuf::putBytes(const void* buffer, std::uint32_t count)
{
    m_bytes.append(static_cast<const char*>(buffer), static_cast<int>(count));
}
