#include "CFxCommunityCommand.h"

#include <IQuestionView.h>

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
    IQuestionView().showiQuestionView();
    return RTNORM;
}
