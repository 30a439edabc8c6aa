#include "CFxCommandContext.h"

#include <utility>

CFxCommandContext::CFxCommandContext(QStringList answers, OdRxObject* database)
    : m_io(std::move(answers)), m_database(database)
{}

CFxCommandContext::~CFxCommandContext() = default;

OdEdUserIO* CFxCommandContext::userIO()
{
    return &m_io;
}

OdRxObject* CFxCommandContext::baseDatabase()
{
    return m_database;
}
