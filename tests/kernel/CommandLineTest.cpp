// What a command typed on the host's command line gets: the words after its name as answers
// to its prompts, and Enter (the prompt's default) when they run out.
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxCommandLineIO.h>
#include <OdError.h>
#include <OdStaticRxObject.h>

TEST(CommandLine, AnswersPromptsInOrderAndEnterGivesThePromptsDefault)
{
    OdStaticRxObject<CFxCommandLineIO> io(QStringList{"first", "", "-12", "twelve", "3"});
    EXPECT_EQ(io.getString(OdString(L"A"), OdString(L"default")), OdString(L"first"));
    EXPECT_EQ(io.getString(OdString(L"B"), OdString(L"default")), OdString(L"default"));
    EXPECT_EQ(io.getInt(OdString(L"C"), 7), -12);
    try {
        io.getInt(OdString(L"D"), 7);
        ADD_FAILURE() << "a word was taken for a number";
    } catch (const OdError& error) {
        EXPECT_STREQ(error.what(), "'twelve' is not a whole number");
    }
    EXPECT_EQ(io.getInt(OdString(L"E"), 7), 3);
    EXPECT_EQ(io.getInt(OdString(L"F"), 7), 7);
    EXPECT_EQ(io.getString(OdString(L"G")), OdString());
}
