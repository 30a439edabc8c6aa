// The web addresses that the module opens.
#include "EventRecorder.h"
#include "UrlRecorder.h"
#include "locale/CFxPlotPronto.h"
#include "locale/LanguageEntry.h"
#include "locale/ProductPage.h"

#include <gtest/gtest.h>

#include <OdStaticRxObject.h>

namespace {
QString page(const char* path)
{
    return QStringLiteral("http://" EXTCOMMANDS_CORPORATE_HOST) + QString::fromUtf8(path);
}

QString addressFor(const QString& folderName, const char* suffix)
{
    return productPageAddress(LanguageEntry(1, CFxString(), 0, true, folderName),
                              QString::fromLatin1(suffix));
}

TEST(WebAddressTest, TheLanguageFolderBecomesThePathSegmentExceptForEnglish)
{
    EXPECT_EQ(addressFor("english", "free-download"),
              page("/products-services/quillon-cad-software/free-download"));
    EXPECT_EQ(addressFor("English", "latest-version"),
              page("/products-services/quillon-cad-software/latest-version"));
    EXPECT_EQ(addressFor("german", "free-download"),
              page("/german/products-services/quillon-cad-software/free-download"));
    EXPECT_EQ(addressFor("chinese/QObject::traditional", "latest-version"),
              page("/chinese/QObject::traditional/products-services/quillon-cad-software/"
                   "latest-version"));
    // An empty folder name: the separator alone, which doubles the slash.
    EXPECT_EQ(addressFor("", "free-download"),
              page("//products-services/quillon-cad-software/free-download"));
}

TEST(WebAddressTest, PlotProntoOpensTheLabsProjectPage)
{
    EventRecorder events;
    const UrlRecorder urls;
    OdStaticRxObject<CFxPlotPronto> command;
    EXPECT_EQ(command.runCommand(nullptr), RTNORM);
    EXPECT_EQ(events.events().values("url-opened", "url"),
              QStringList{"http://" EXTCOMMANDS_LABS_HOST "/Projects/PlotPronto/"});
}
} // namespace
