#include "IdentifierMatch.h"

#include "HostIdentifiers.h"

bool IdentifierMatch::inAnyCase(const CFxString& identifier, const CFxString& wanted)
{
    return identifier.equalNoCase(wanted);
}

bool IdentifierMatch::inAnyCase(const QString& identifier, const QString& wanted)
{
    return identifier.compare(wanted, Qt::CaseInsensitive) == 0;
}

QString IdentifierMatch::anyCaseKey(const QString& identifier)
{
    return identifier.toCaseFolded();
}

bool IdentifierMatch::isHelpMenu(const CFxString& identifier)
{
    return exactly(identifier, CFxString(kHelpMenuId));
}

bool IdentifierMatch::isOnlineSupportItem(const CFxString& identifier)
{
    return exactly(identifier, CFxString(kOnlineSupportItemId));
}

bool IdentifierMatch::isSystemMenuAbout(const CFxString& identifier)
{
    return exactly(identifier, CFxString(kSystemMenuAboutId));
}

bool IdentifierMatch::isDataManagementButton(const CFxString& identifier)
{
    return exactly(identifier, CFxString(kDataManagementButtonId));
}

bool IdentifierMatch::isEntryText(const CFxString& text, const CFxString& entryText)
{
    return exactly(text, entryText);
}

bool IdentifierMatch::exactly(const CFxString& identifier, const CFxString& wanted)
{
    return identifier.compare(wanted) == 0;
}
