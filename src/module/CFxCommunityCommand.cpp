#include "CFxCommunityCommand.h"

const OdString CFxCommunityCommand::globalName() const
{
    return OdString(L"_Community");
}

const OdString CFxCommunityCommand::localName() const
{
    return OdString(L"Community");
}

int CFxCommunityCommand::runCommand(OdEdCommandContext*)
{
    return RTNORM;
}
