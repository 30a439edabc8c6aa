#include "CFxViewcast.h"

const OdString CFxViewcast::globalName() const
{
    return OdString(L"_VIEWCAST");
}

const OdString CFxViewcast::localName() const
{
    return OdString(L"VIEWCAST");
}

int CFxViewcast::runCommand(OdEdCommandContext*)
{
    return RTNORM;
}
