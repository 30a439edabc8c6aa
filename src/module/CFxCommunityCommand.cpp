#include "CFxCommunityCommand.h"

#include <IQuestionView.h>

int CFxCommunityCommand::runCommand(OdEdCommandContext*)
{
    IQuestionView().showiQuestionView();
    return RTNORM;
}
