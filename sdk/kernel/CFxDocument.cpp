#include "CFxDocument.h"

#include <utility>

CFxDocument::CFxDocument(int index, QString pathName, OdDbDatabasePtr database)
    : m_index(index), m_pathName(std::move(pathName)), m_database(std::move(database))
{}

CFxDocument::~CFxDocument() = default;
