#include "OdDbObjectId.h"

#include "OdDbDatabase.h"

OdDbObjectId::OdDbObjectId(OdDbDatabase* database, int index) : m_database(database), m_index(index)
{}

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode) const
{
    return m_database ? m_database->objectAt(m_index) : OdDbObjectPtr();
}
