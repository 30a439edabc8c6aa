#include "qnCheckforUpdates.h"

#include "ProductPage.h"

int qnCheckforUpdates::runCommand(OdEdCommandContext*)
{
    openProductPage(QStringLiteral("free-download"));
    return RTNORM;
}
