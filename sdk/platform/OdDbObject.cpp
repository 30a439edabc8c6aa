#include "OdDbObject.h"

OdDbObject::OdDbObject(OdDbObjectId id) : m_id(id) {}

OdDbObject::~OdDbObject() = default;
