#include "OdEdCommand.h"

#include "OdHostDynamicLinker.h"

#include <typeinfo>

OdEdCommand::~OdEdCommand() = default;

const OdString OdEdCommand::localName() const
{
    return globalName();
}

OdRxModule* OdEdCommand::module() const
{
    // A class's type information lives in the library that defines the class.
    return odrxHostDynamicLinker()->moduleContaining(&typeid(*this));
}

void OdEdCommand::undefine(bool undefined)
{
    m_undefined = undefined;
}

int OdEdCommand::flags() const
{
    return kModal;
}
