#include "CFxHomeCommand.h"

#include <TarnTaskPane.h>

const OdString CFxHomeCommand::globalName() const
{
    return OdString(L"_Home");
}

const OdString CFxHomeCommand::localName() const
{
    return OdString(L"Home");
}

int CFxHomeCommand::runCommand(OdEdCommandContext*)
{
    TarnTaskPane().showTaskPane();
    return RTNORM;
}
