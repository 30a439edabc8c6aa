#include "ExtTutorialCommand.h"

const OdString ExtTutorialCommand::globalName() const
{
    return OdString(L"_TUTORIAL");
}

const OdString ExtTutorialCommand::localName() const
{
    return OdString(L"TUTORIAL");
}

int ExtTutorialCommand::runCommand(OdEdCommandContext*)
{
    return RTNORM;
}
