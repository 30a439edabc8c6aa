#include "qnCheckforUpdates.h"

#include "ProductPage.h"

const OdString qnCheckforUpdates::globalName() const
{
    return OdString(L"_CHECKFORUPDATES");
}

const OdString qnCheckforUpdates::localName() const
{
    return OdString(L"CHECKFORUPDATES");
}

int qnCheckforUpdates::runCommand(OdEdCommandContext*)
{
    openProductPage(QStringLiteral("free-download"));
    return RTNORM;
}
