// The web addresses that the module opens, for what a host run cannot reach.
#include "EventRecorder.h"
#include "UrlRecorder.h"
#include "locale/CFxPlotPronto.h"
#include "locale/LanguageEntry.h"
#include "locale/ProductPage.h"

#include <gtest/gtest.h>

#include <OdStaticRxObject.h>

TEST(WebAddressTest, EnglishInAnyLetterCaseGivesTheRootPath)
{
    EXPECT_EQ(
        productPageAddress(LanguageEntry(1, CFxString(), 0, true, "English"), "latest-version"),
        "http://" EXTCOMMANDS_CORPORATE_HOST
        "/products-services/quillon-cad-software/latest-version");
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
