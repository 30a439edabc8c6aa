#include "CFxViewcast.h"

#include "publish/ViewcastPublisher.h"

#include <OdEdCommandContext.h>

int CFxViewcast::runCommand(OdEdCommandContext* context)
{
    return ViewcastPublisher(ViewerAutomation::create()).publish(context->baseDatabase());
}
