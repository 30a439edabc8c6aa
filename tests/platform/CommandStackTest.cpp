// The command stack: finding commands as a user types them, refusing duplicates, holding
// references, and running a command between the editor reactors' notifications.
#include "EventRecorder.h"
#include "TestPrinters.h"
#include "TestStrings.h"

#include <gtest/gtest.h>

#include <OdError.h>
#include <OdHostCommandStack.h>
#include <OdHostEditor.h>
#include <OdRxObjectImpl.h>
#include <OdStaticRxObject.h>

namespace {
struct NamedCommand : public OdEdCommand
{
    const OdString groupName() const override { return group; }
    const OdString globalName() const override { return global; }
    const OdString localName() const override { return local; }
    void execute(OdEdCommandContext*) override { log->append("run " + qt(global)); }

    OdString group, global, local;
    QStringList* log = nullptr;
};

using CommandPtr = OdSmartPtr<NamedCommand>;

class LoggingEditorReactor : public OdEditorReactor
{
public:
    explicit LoggingEditorReactor(QStringList* log) : m_log(log) {}
    void commandWillStart(const OdString& name) override { m_log->append("start " + qt(name)); }
    void commandEnded(const OdString& name) override { m_log->append("end " + qt(name)); }

private:
    QStringList* m_log;
};
} // namespace

class CommandStack : public ::testing::Test
{
protected:
    CommandPtr command(const wchar_t* group, const wchar_t* global, const wchar_t* local)
    {
        CommandPtr made = OdRxObjectImpl<NamedCommand>::createObject();
        made->group = group;
        made->global = global;
        made->local = local;
        made->log = &log;
        return made;
    }

    OdHostCommandStack stack;
    QStringList log;
};

TEST_F(CommandStack, FindsCommandsAsTypedAndRunsThemBetweenTheEditorReactorsNotifications)
{
    CommandPtr line = command(L"DRAW", L"_LINE", L"LINE");
    CommandPtr circle = command(L"Draw2", L"_CIRCLE", L"KREIS");
    CommandPtr shadow = command(L"DRAW2", L"_LINE2", L"line");
    for (const CommandPtr& each : {line, circle, shadow})
        stack.addCommand(each.get());

    EXPECT_EQ(stack.lookupCmd(OdString(L"line")), line.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"_Line")), line.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"Kreis")), circle.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"KREIS"), OdHostCommandStack::kGlobal), nullptr);
    EXPECT_EQ(stack.lookupCmd(OdString(L"_CIRCLE"), OdHostCommandStack::kLocal), nullptr);
    EXPECT_EQ(stack.lookupCmd(OdString(L"LINE"), OdHostCommandStack::kLocal, OdString(L"draw2")),
              shadow.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"_CIRCLE"), OdHostCommandStack::kGlobal, OdString(L"DRAW")),
              nullptr);

    OdStaticRxObject<LoggingEditorReactor> reactor(&log);
    odedHostEditor()->addReactor(&reactor);
    EXPECT_TRUE(stack.executeCommand(OdString(L"kreis"), nullptr));
    EXPECT_FALSE(stack.executeCommand(OdString(L"CIRCLE"), nullptr));
    EXPECT_EQ(log, QStringList({"start _CIRCLE", "run _CIRCLE", "end _CIRCLE"}));
    odedHostEditor()->removeReactor(&reactor);
    for (const CommandPtr& each : {line, circle, shadow})
        stack.removeCmd(each.get());
}

TEST_F(CommandStack, HoldsAReferenceWhileACommandIsOnItAndRefusesADuplicateInItsGroup)
{
    EventRecorder recorder;
    CommandPtr first = command(L"DRAW", L"_LINE", L"LINE");
    CommandPtr twin = command(L"draw", L"_line", L"OTHER");
    CommandPtr elsewhere = command(L"EDIT", L"_LINE", L"EDITLINE");
    stack.addCommand(first.get());
    EXPECT_EQ(first->numRefs(), 2);
    try {
        stack.addCommand(twin.get());
        ADD_FAILURE() << "a duplicate was accepted";
    } catch (const OdError& error) {
        EXPECT_EQ(qt(error.description()), "duplicate command _line in group draw");
    }
    EXPECT_EQ(twin->numRefs(), 1);
    stack.addCommand(elsewhere.get());
    EXPECT_EQ(stack.commands(), std::vector<OdEdCommand*>({first.get(), elsewhere.get()}));

    stack.removeCmd(OdString(L"EDIT"), OdString(L"_line"));
    stack.removeCmd(first.get());
    stack.removeCmd(first.get());
    EXPECT_EQ(first->numRefs(), 1);
    EXPECT_EQ(elsewhere->numRefs(), 1);
    EXPECT_TRUE(stack.commands().empty());
    EXPECT_EQ(recorder.events().describe({"command-added", "command-removed"}, "local"),
              QStringList({"command-added:LINE", "command-added:EDITLINE",
                           "command-removed:EDITLINE", "command-removed:LINE"}));
}
