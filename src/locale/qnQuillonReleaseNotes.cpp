#include "qnQuillonReleaseNotes.h"

#include "ProductPage.h"

const OdString qnQuillonReleaseNotes::globalName() const
{
    return OdString(L"_RELEASENOTES");
}

const OdString qnQuillonReleaseNotes::localName() const
{
    return OdString(L"RELEASENOTES");
}

int qnQuillonReleaseNotes::runCommand(OdEdCommandContext*)
{
    openProductPage(QStringLiteral("latest-version"));
    return RTNORM;
}
