// The start-up decision between the crash-report companion's installation check and its
// reminder, from the recorded version and the running one.
#include "CrashReportVersionRule.h"

#include <gtest/gtest.h>

TEST(CrashReportVersionRule, InstallCheckOnTheFirstRunAndOnTheFirstRunOfAnXDot0Release)
{
    EXPECT_TRUE(crashReportInstallCheck(false, QString(), "2017.1.9"));
    EXPECT_FALSE(crashReportInstallCheck(true, "2017.0.100", "2017.0.100"));
    EXPECT_TRUE(crashReportInstallCheck(true, "2016.1.7", "2017.0.3"));
    EXPECT_FALSE(crashReportInstallCheck(true, "2017.0.3", "2017.1.9"));
}

TEST(CrashReportVersionRule, ComparesIgnoringCaseAndReadsTheSecondComponentAsText)
{
    // Equal but for letter case: the same version, so the reminder, even with a "0".
    EXPECT_FALSE(crashReportInstallCheck(true, "2017.0.3-RC", "2017.0.3-rc"));
    EXPECT_TRUE(crashReportInstallCheck(true, "2017.0.3-RC", "2017.0.4-rc"));
    EXPECT_FALSE(crashReportInstallCheck(true, "2016.1.7", "2017.00.3"));
    // Empty components are skipped before the second one is taken.
    EXPECT_TRUE(crashReportInstallCheck(true, "2016.1.7", "2017..0.3"));
    EXPECT_FALSE(crashReportInstallCheck(true, "2016.1.7", "2017"));
}
