#include "OdDbDatabase.h"

OdDbDatabase::OdDbDatabase() = default;

OdDbDatabase::~OdDbDatabase() = default;
