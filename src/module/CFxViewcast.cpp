#include "CFxViewcast.h"

#include "publish/ViewcastPublisher.h"

#include <OdEdCommandContext.h>

const OdString CFxViewcast::globalName() const
{
    return OdString(L"_VIEWCAST");
}

const OdString CFxViewcast::localName() const
{
    return OdString(L"VIEWCAST");
}

int CFxViewcast::runCommand(OdEdCommandContext* context)
{
    return ViewcastPublisher(ViewerAutomation::create()).publish(context->baseDatabase());
}
