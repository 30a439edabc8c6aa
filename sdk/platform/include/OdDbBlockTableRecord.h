#pragma once

#include "OdDbObject.h"
#include "OdString.h"
#include "TD_DbExport.h"

class OdDbBlockTableRecord;
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

// A block definition of a drawing: its name and flags and, for an external reference (block
// flag 4), the path of the drawing it refers to, as the drawing holds it (absolute, or
// relative to the drawing's own folder).
class TD_DB_EXPORT OdDbBlockTableRecord : public OdDbObject
{
public:
    // Flag bit of a block that is an external reference.
    static constexpr int kExternalReference = 4;

    // `object` as a block record; null when it is none.
    static OdDbBlockTableRecordPtr cast(const OdRxObject* object);
    static OdDbBlockTableRecordPtr cast(const OdDbObjectPtr& object) { return cast(object.get()); }

    // Defined in the library, so that its type information lives there alone.
    ~OdDbBlockTableRecord() override;

    const OdString& getName() const { return m_name; }
    int flags() const { return m_flags; }
    bool isFromExternalReference() const { return (m_flags & kExternalReference) != 0; }
    // Empty for a block that is not an external reference.
    const OdString& pathName() const { return m_pathName; }

protected:
    OdDbBlockTableRecord(OdDbObjectId id, OdString name, int flags, OdString pathName);

private:
    OdString m_name;
    int m_flags;
    OdString m_pathName;
};
