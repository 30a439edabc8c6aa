// The command stack: finding commands as a user types them, refusing duplicates, lending
// references, and running a command between the editor reactors' notifications.
#include "EventRecorder.h"
#include "TestStrings.h"

#include <gtest/gtest.h>

#include <OdEdCommandStack.h>
#include <OdEditor.h>
#include <OdError.h>
#include <OdRxObjectImpl.h>
#include <OdStaticRxObject.h>

namespace {
class NamedCommand : public OdEdCommand
{
public:
    NamedCommand(const wchar_t* group, const wchar_t* global, const wchar_t* local,
                 QStringList* log)
        : m_group(group), m_global(global), m_local(local), m_log(log)
    {}

    const OdString groupName() const override { return m_group; }
    const OdString globalName() const override { return m_global; }
    const OdString localName() const override { return m_local; }
    void execute(OdEdCommandContext*) override { m_log->append("run " + qt(m_global)); }

private:
    OdString m_group, m_global, m_local;
    QStringList* m_log;
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
        return OdRxObjectImpl<NamedCommand>::createObject(group, global, local, &log);
    }

    OdEdCommandStack stack;
    QStringList log;
};

TEST_F(CommandStack, FindsCommandsByNameAsTypedInTheChosenGroupAndNameKinds)
{
    CommandPtr line = command(L"DRAW", L"_LINE", L"LINE");
    CommandPtr circle = command(L"Draw2", L"_CIRCLE", L"KREIS");
    CommandPtr shadow = command(L"DRAW2", L"_LINE2", L"line");
    for (const CommandPtr& each : {line, circle, shadow})
        stack.addCommand(each.get());

    EXPECT_EQ(stack.lookupCmd(OdString(L"line")), line.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"_Line")), line.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"Kreis")), circle.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"KREIS"), OdEdCommandStack::kGlobal), nullptr);
    EXPECT_EQ(stack.lookupCmd(OdString(L"_CIRCLE"), OdEdCommandStack::kLocal), nullptr);
    EXPECT_EQ(stack.lookupCmd(OdString(L"LINE"), OdEdCommandStack::kLocal, OdString(L"draw2")),
              shadow.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"_CIRCLE"), OdEdCommandStack::kGlobal, OdString(L"DRAW")),
              nullptr);

    // An undefined command answers only to its global name.
    line->undefine(true);
    EXPECT_EQ(stack.lookupCmd(OdString(L"LINE")), shadow.get());
    EXPECT_EQ(stack.lookupCmd(OdString(L"_LINE")), line.get());

    for (const CommandPtr& each : {line, circle, shadow})
        stack.removeCmd(each.get());
}

TEST_F(CommandStack, RefusesASecondCommandOfTheSameGlobalNameInOneGroup)
{
    CommandPtr first = command(L"DRAW", L"_LINE", L"LINE");
    CommandPtr twin = command(L"draw", L"_line", L"OTHER");
    CommandPtr elsewhere = command(L"EDIT", L"_LINE", L"LINE");
    stack.addCommand(first.get());

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
    EXPECT_TRUE(stack.commands().empty());
}

TEST_F(CommandStack, HoldsAReferenceWhileACommandIsOnIt)
{
    EventRecorder recorder;
    CommandPtr line = command(L"DRAW", L"_LINE", L"LINE");

    stack.addCommand(line.get());
    EXPECT_EQ(line->numRefs(), 2);
    stack.removeCmd(line.get());
    EXPECT_EQ(line->numRefs(), 1);
    stack.removeCmd(line.get());
    EXPECT_EQ(line->numRefs(), 1);
    EXPECT_EQ(recorder.events().describe({"command-added", "command-removed"}, "local"),
              QStringList({"command-added:LINE", "command-removed:LINE"}));
}

TEST_F(CommandStack, RunsACommandBetweenTheEditorReactorsNotifications)
{
    OdStaticRxObject<LoggingEditorReactor> reactor(&log);
    odedEditor()->addReactor(&reactor);
    CommandPtr line = command(L"DRAW", L"_LINE", L"LINIE");
    stack.addCommand(line.get());

    EXPECT_TRUE(stack.executeCommand(OdString(L"linie"), nullptr));
    EXPECT_FALSE(stack.executeCommand(OdString(L"KREIS"), nullptr));
    EXPECT_EQ(log, QStringList({"start _LINE", "run _LINE", "end _LINE"}));

    stack.removeCmd(line.get());
    odedEditor()->removeReactor(&reactor);
}
