#include "CFxUIObject.h"

namespace {
// The model lives on the UI thread, as every object of it does.
std::uint64_t g_identifierChanges = 0;
} // namespace

CFxUIObject::CFxUIObject(const CFxString& identifier) : m_identifier(identifier) {}

CFxUIObject::~CFxUIObject() = default;

void CFxUIObject::SetIdentifier(const CFxString& identifier)
{
    m_identifier = identifier;
    ++g_identifierChanges;
}

std::uint64_t CFxUIObject::identifierChanges()
{
    return g_identifierChanges;
}
