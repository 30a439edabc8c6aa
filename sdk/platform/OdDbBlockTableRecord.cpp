#include "OdDbBlockTableRecord.h"

#include <utility>

OdDbBlockTableRecord::OdDbBlockTableRecord(OdDbObjectId id, OdString name, int flags,
                                           OdString pathName)
    : OdDbObject(id), m_name(std::move(name)), m_flags(flags), m_pathName(std::move(pathName))
{}

OdDbBlockTableRecord::~OdDbBlockTableRecord() = default;

OdDbBlockTableRecordPtr OdDbBlockTableRecord::cast(const OdRxObject* object)
{
    return OdDbBlockTableRecordPtr(
        dynamic_cast<OdDbBlockTableRecord*>(const_cast<OdRxObject*>(object)));
}
