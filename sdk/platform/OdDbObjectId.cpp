#include "OdDbObjectId.h"

#include "OdDbDxfDatabase.h"

OdDbObjectId::OdDbObjectId(OdDbDatabase* database, int index) : m_database(database), m_index(index)
{}

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode) const
{
    const auto* database = dynamic_cast<const OdDbDxfDatabase*>(m_database);
    return database ? database->objectAt(m_index) : OdDbObjectPtr();
}
