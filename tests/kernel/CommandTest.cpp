// The host's command base as a command class derived from it meets it: what the command stack
// runs is the class's run operation, its result code reaches the host's context, and a class
// that chooses no group is found in the host's default one.
#include "TestPrinters.h"
#include "TestStrings.h"

#include <gtest/gtest.h>

#include <CFxCommand.h>
#include <CFxCommandContext.h>
#include <OdHostCommandStack.h>
#include <OdStaticRxObject.h>

namespace {
// Answers its names and a result code of its own, and counts its runs.
class MeasureCommand : public CFxCommand
{
public:
    const OdString globalName() const override { return OdString(L"_MEASURE"); }
    const OdString localName() const override { return OdString(L"MEASURE"); }
    int runCommand(OdEdCommandContext*) override
    {
        ++runs;
        return 42;
    }

    int runs = 0;
};

// A context that is not the host's: it has no place for a result.
class BareContext : public OdEdCommandContext
{
public:
    OdEdUserIO* userIO() override { return nullptr; }
    OdRxObject* baseDatabase() override { return nullptr; }
};
} // namespace

TEST(HostCommand, RunsThroughTheStackHandsItsResultToTheHostsContextAndKeepsTheDefaultGroup)
{
    OdHostCommandStack stack;
    OdStaticRxObject<MeasureCommand> command;
    stack.addCommand(&command);

    EXPECT_EQ(qt(command.groupName()), "QUILLON_COMMANDS");
    EXPECT_EQ(stack.lookupCmd(od("measure"), OdHostCommandStack::kLocal, od("QUILLON_COMMANDS")),
              &command);
    OdStaticRxObject<CFxCommandContext> context(QStringList{}, nullptr);
    EXPECT_TRUE(stack.executeCommand(od("_MEASURE"), &context));
    EXPECT_EQ(context.result(), 42);

    OdStaticRxObject<BareContext> bare;
    EXPECT_TRUE(stack.executeCommand(od("MEASURE"), &bare));
    EXPECT_EQ(command.runs, 2);
    stack.removeCmd(&command);
}
