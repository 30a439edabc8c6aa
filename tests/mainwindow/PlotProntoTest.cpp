// The labs page command, which no host run reaches: it is built here from the module's source.
#include "EventRecorder.h"
#include "TestPrinters.h"
#include "UrlRecorder.h"
#include "locale/CFxPlotPronto.h"

#include <gtest/gtest.h>

#include <OdStaticRxObject.h>

TEST(PlotProntoTest, OpensTheLabsProjectPage)
{
    EventRecorder events;
    const UrlRecorder urls;
    OdStaticRxObject<CFxPlotPronto> command;
    EXPECT_EQ(command.runCommand(nullptr), RTNORM);
    EXPECT_EQ(events.events().values("url-opened", "url"),
              QStringList{"http://" EXTCOMMANDS_LABS_HOST "/Projects/PlotPronto/"});
}
