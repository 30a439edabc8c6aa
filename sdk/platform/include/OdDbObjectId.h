#pragma once

#include "OdDb.h"
#include "OdSmartPtr.h"
#include "TD_DbExport.h"

class OdDbDatabase;
class OdDbObject;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

// Names an object of a drawing database. It stays valid as long as its database lives.
class TD_DB_EXPORT OdDbObjectId
{
public:
    OdDbObjectId() = default;
    OdDbObjectId(OdDbDatabase* database, int index);

    bool isNull() const { return m_database == nullptr; }
    OdDbDatabase* database() const { return m_database; }
    // The object; null for a null id.
    OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead) const;

    friend bool operator==(const OdDbObjectId& a, const OdDbObjectId& b)
    {
        return a.m_database == b.m_database && a.m_index == b.m_index;
    }

private:
    OdDbDatabase* m_database = nullptr;
    int m_index = -1;
};
