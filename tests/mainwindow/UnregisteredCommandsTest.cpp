// The commands that the module makes but never registers, so that no host run reaches them:
// built here from the module's source and run on a desktop that opens web addresses and on one
// that refuses them. Either way they end normally.
#include "EventRecorder.h"
#include "TestPrinters.h"
#include "UrlRecorder.h"
#include "locale/CFxPlotPronto.h"
#include "module/ExtTutorialCommand.h"

#include <gtest/gtest.h>

#include <OdStaticRxObject.h>

#include <ostream>

namespace {
struct Desktop
{
    bool refusing;
    // What the host reports for each address handed to this desktop.
    const char* event;
};

void PrintTo(const Desktop& desktop, std::ostream* out)
{
    *out << (desktop.refusing ? "refusing" : "accepting") << " desktop";
}

class UnregisteredCommandTest : public ::testing::TestWithParam<Desktop>
{
protected:
    EventRecorder events;
    const UrlRecorder urls{GetParam().refusing};
};

// Kept: docs/lifecycle.md, row "Unregistered commands".
TEST_P(UnregisteredCommandTest, PlotProntoOpensTheLabsProjectPageAndEndsNormally)
{
    OdStaticRxObject<CFxPlotPronto> command;
    EXPECT_EQ(command.runCommand(nullptr), RTNORM);
    EXPECT_EQ(events.events().names(), QStringList{GetParam().event});
    EXPECT_EQ(events.events().values(GetParam().event, "url"),
              QStringList{"http://" EXTCOMMANDS_LABS_HOST "/Projects/PlotPronto/"});
}

// Kept: docs/lifecycle.md, row "Unregistered commands".
TEST_P(UnregisteredCommandTest, TutorialDoesNothingAndEndsNormally)
{
    OdStaticRxObject<ExtTutorialCommand> command;
    EXPECT_EQ(command.runCommand(nullptr), RTNORM);
    EXPECT_EQ(events.events().names(), QStringList());
}

// Never registered, they still carry their names: a host that listed the module's commands
// would find them under these.
// Kept: docs/lifecycle.md, row "Unregistered commands".
TEST(UnregisteredCommandNames, AreThoseOfTheLabsPageAndTheTutorial)
{
    const OdStaticRxObject<CFxPlotPronto> labsPage;
    const OdStaticRxObject<ExtTutorialCommand> tutorial;
    EXPECT_EQ(labsPage.globalName(), OdString(L"_PLOT_PRONTO"));
    EXPECT_EQ(labsPage.localName(), OdString(L"PLOT_PRONTO"));
    EXPECT_EQ(tutorial.globalName(), OdString(L"_TUTORIAL"));
    EXPECT_EQ(tutorial.localName(), OdString(L"TUTORIAL"));
}

INSTANTIATE_TEST_SUITE_P(Desktops, UnregisteredCommandTest,
                         ::testing::Values(Desktop{false, "url-opened"},
                                           Desktop{true, "url-refused"}));
} // namespace
