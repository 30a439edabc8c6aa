#include "ExtTutorialCommand.h"

int ExtTutorialCommand::runCommand(OdEdCommandContext*)
{
    return RTNORM;
}
