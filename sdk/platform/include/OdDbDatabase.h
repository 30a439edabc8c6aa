#pragma once

#include "OdDb.h"
#include "OdRxObject.h"
#include "OdSmartPtr.h"
#include "OdStreamBuf.h"
#include "OdString.h"
#include "TD_DbExport.h"

class OdDbDatabase;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

// A drawing, as a module sees it: where it was read from, and writing it into a stream.
class TD_DB_EXPORT OdDbDatabase : public OdRxObject
{
public:
    ~OdDbDatabase() override;

    // The absolute path the drawing was read from.
    virtual const OdString& getFilename() const = 0;

    // Writes the drawing into `stream`. The version code and the DXF precision are accepted
    // as the platform's and otherwise not looked at; the thumbnail is the one the drawing
    // holds, if any. Throws OdError for a null stream, for kDxb, or when the stream fails.
    virtual void writeFile(OdStreamBuf* stream, OdDb::SaveType fileType,
                           OdDb::DwgVersion fileVersion, bool saveThumbnailImage = false,
                           int dxfPrecision = 16) const = 0;

protected:
    OdDbDatabase();
};
