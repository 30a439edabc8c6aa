#pragma once

#include "OdRxObject.h"
#include "OdSmartPtr.h"
#include "OdString.h"
#include "TD_RootExport.h"

#include <cstdint>

// A stream of bytes that the platform reads drawings from and writes them to. A request that
// the stream cannot carry out (reading past its end, writing to a stream opened for reading,
// a full disk) throws OdError.
class TD_ROOT_EXPORT OdStreamBuf : public OdRxObject
{
public:
    ~OdStreamBuf() override;

    // The name of the file behind the stream.
    virtual OdString fileName() = 0;
    virtual std::uint64_t length() = 0;
    virtual void getBytes(void* buffer, std::uint32_t count) = 0;
    virtual void putBytes(const void* buffer, std::uint32_t count) = 0;
};

using OdStreamBufPtr = OdSmartPtr<OdStreamBuf>;
