// The main() of every test program: a home of its own, the offscreen platform, and a
// QApplication for the tests that need widgets or an event loop.
#include "IsolatedHome.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    IsolatedHome home;
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
