#pragma once

class LanguageTable;
class SystemLocale;
struct LanguageEntry;

// The language of the host's current setting, read afresh on every call; "System" is the
// operating system's locale, and an id the table lacks is the default entry.
const LanguageEntry& currentLanguage(const LanguageTable& table, const SystemLocale& system);
const LanguageEntry& currentLanguage(const LanguageTable& table);
