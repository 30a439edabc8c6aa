#include "ProductPage.h"

#include "LanguageTable.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

namespace {
// "%1" is the language segment.
constexpr char kProductPageTemplate[] =
    "http://" EXTCOMMANDS_CORPORATE_HOST "%1/products-services/quillon-cad-software/";

// The language's translations folder as a path: "/german", "/chinese/simplified". English
// pages sit at the site's root. A folder of the separator alone (the "System" entry and the
// default entry) stays "/" and so doubles the slash behind the host name. Kept:
// docs/lifecycle.md, row "Doubled slash".
QString languageSegment(const LanguageEntry& language)
{
    const QString segment = QDir::cleanPath(language.folder.toQString());
    return segment.compare(QLatin1String("/english"), Qt::CaseInsensitive) == 0 ? QString()
                                                                                : segment;
}
} // namespace

QString productPageAddress(const LanguageEntry& language, const QString& suffix)
{
    return (QString::fromUtf8(kProductPageTemplate) + suffix)
        .arg(languageSegment(language), 0, QLatin1Char(' '));
}

void openProductPage(const QString& suffix)
{
    const LanguageEntry language = LanguageTable().currentEntry();
    QDesktopServices::openUrl(QUrl(productPageAddress(language, suffix), QUrl::TolerantMode));
}
