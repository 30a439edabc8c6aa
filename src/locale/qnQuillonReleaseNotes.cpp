#include "qnQuillonReleaseNotes.h"

#include "ProductPage.h"

int qnQuillonReleaseNotes::runCommand(OdEdCommandContext*)
{
    openProductPage(QStringLiteral("latest-version"));
    return RTNORM;
}
