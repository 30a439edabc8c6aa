#pragma once

#include <QString>

struct LanguageEntry;

// The maker's product pages: one page per suffix ("free-download", "latest-version"), below a
// path segment of the language (none for English).

// The page's address for `language`.
QString productPageAddress(const LanguageEntry& language, const QString& suffix);

// Opens the page, in the language of the host's current setting, in the user's browser.
void openProductPage(const QString& suffix);
