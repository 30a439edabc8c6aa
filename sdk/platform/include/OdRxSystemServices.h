#pragma once

#include "OdFileModes.h"
#include "OdStreamBuf.h"
#include "OdString.h"
#include "TD_RootExport.h"

// The operating-system services of the platform, as odSystemServices() gives them.
class TD_ROOT_EXPORT OdRxSystemServices
{
public:
    OdRxSystemServices();
    virtual ~OdRxSystemServices();
    OdRxSystemServices(const OdRxSystemServices&) = delete;
    OdRxSystemServices& operator=(const OdRxSystemServices&) = delete;

    // Opens or creates the file `path` as `disposition` says, for the access asked for; the
    // stream closes the file when its last reference goes, and a file opened for writing is
    // then reported as written ("file-written"). Sharing is honoured among the streams of
    // this process: a request that an open stream's share mode denies, or whose own share
    // mode denies an open stream's access, fails. Creating or emptying a file needs write
    // access. Throws OdError with the reason when the file cannot be opened or created.
    virtual OdStreamBufPtr
    createFile(const OdString& path, Oda::FileAccessMode access = Oda::kFileRead,
               Oda::FileShareMode share = Oda::kShareDenyNo,
               Oda::FileCreationDisposition disposition = Oda::kOpenExisting);
};

TD_ROOT_EXPORT OdRxSystemServices* odSystemServices();
