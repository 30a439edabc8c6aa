#include "CFxNamedCommand.h"

CFxNamedCommand::CFxNamedCommand(const wchar_t* localName) : m_localName(localName) {}

CFxNamedCommand::~CFxNamedCommand() = default;

const OdString CFxNamedCommand::globalName() const
{
    return OdString(L"_") + m_localName;
}

const OdString CFxNamedCommand::localName() const
{
    return m_localName;
}
