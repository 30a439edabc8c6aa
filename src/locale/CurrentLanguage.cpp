#include "CurrentLanguage.h"

#include "LanguageTable.h"
#include "SystemLocale.h"

#include <CFxSystemServices.h>

const LanguageEntry& currentLanguage(const LanguageTable& table, const SystemLocale& system)
{
    const int id = GetFxSystemServices()->GetCurrentLanguageId();
    if (id == LanguageTable::kSystemId)
        return table.entryById(system.entryIn(table).id);
    return table.entryById(id);
}

const LanguageEntry& currentLanguage(const LanguageTable& table)
{
    return currentLanguage(table, SystemLocale());
}
