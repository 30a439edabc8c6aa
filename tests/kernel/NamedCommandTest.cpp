// A command made with its name: the host's global name is that name after an underscore, and both
// stay right after the text they were made from has changed or gone.
#include <gtest/gtest.h>

#include <CFxNamedCommand.h>
#include <OdStaticRxObject.h>

#include <string>

namespace {
class PlotCommand : public CFxNamedCommand
{
public:
    using CFxNamedCommand::CFxNamedCommand;
    int runCommand(OdEdCommandContext*) override { return RTNORM; }
};
} // namespace

TEST(NamedCommand, AnswersItsLocalAndGlobalNamesFromItsOwnCopy)
{
    std::wstring source = L"PLOT";
    OdStaticRxObject<PlotCommand> command(source.c_str());
    source.assign(L"XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX");
    EXPECT_EQ(command.localName(), OdString(L"PLOT"));
    EXPECT_EQ(command.globalName(), OdString(L"_PLOT"));
}
