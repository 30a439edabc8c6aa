#pragma once

#include "OdDbObjectId.h"
#include "OdRxObject.h"
#include "TD_DbExport.h"

// An object of a drawing database; the database owns it.
class TD_DB_EXPORT OdDbObject : public OdRxObject
{
public:
    ~OdDbObject() override;

    OdDbObjectId objectId() const { return m_id; }
    OdDbDatabase* database() const { return m_id.database(); }

protected:
    explicit OdDbObject(OdDbObjectId id);

private:
    OdDbObjectId m_id;
};
