// The start-up decision between the crash-report companion's installation check and its
// reminder, for the versions that a running host, whose version is made of numbers, cannot give.
#include "CrashReportVersionRule.h"

#include <gtest/gtest.h>

// Kept: docs/lifecycle.md, row "Crash-report check".
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
