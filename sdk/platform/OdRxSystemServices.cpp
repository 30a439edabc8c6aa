#include "OdRxSystemServices.h"

#include "OdFileStreamBuf.h"

OdRxSystemServices::OdRxSystemServices() = default;

OdRxSystemServices::~OdRxSystemServices() = default;

OdStreamBufPtr OdRxSystemServices::createFile(const OdString& path, Oda::FileAccessMode access,
                                              Oda::FileShareMode share,
                                              Oda::FileCreationDisposition disposition)
{
    return OdFileStreamBuf::open(toQString(path), access, share, disposition);
}

OdRxSystemServices* odSystemServices()
{
    static OdRxSystemServices services;
    return &services;
}
