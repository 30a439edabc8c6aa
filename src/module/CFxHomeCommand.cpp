#include "CFxHomeCommand.h"

#include <TarnTaskPane.h>

int CFxHomeCommand::runCommand(OdEdCommandContext*)
{
    TarnTaskPane().showTaskPane();
    return RTNORM;
}
