// The editor's safety net for reactors that go away while attached or during a notification
// round.
#include "EventRecorder.h"

#include <gtest/gtest.h>

#include <OdEditor.h>
#include <OdStaticRxObject.h>

#include <functional>
#include <memory>
#include <vector>

namespace {
// Logs each command start it hears of, then does what the test asks of it.
class ScriptedReactor : public OdEditorReactor
{
public:
    ScriptedReactor(QString name, QStringList* log) : m_name(std::move(name)), m_log(log) {}

    void commandWillStart(const OdString&) override
    {
        m_log->append(m_name);
        if (action)
            std::exchange(action, {})();
    }

    std::function<void()> action;

private:
    QString m_name;
    QStringList* m_log;
};

using Reactor = OdStaticRxObject<ScriptedReactor>;
} // namespace

class EditorReactors : public ::testing::Test
{
protected:
    QStringList round()
    {
        log.clear();
        editor.notify([](OdEditorReactor* reactor) { reactor->commandWillStart(OdString(L"_X")); });
        return log;
    }

    EventRecorder recorder;
    OdEditor editor;
    QStringList log;
};

TEST_F(EditorReactors, AReactorDestroyedWhileAttachedIsForgotten)
{
    auto doomed = std::make_unique<Reactor>(QStringLiteral("doomed"), &log);
    Reactor survivor(QStringLiteral("survivor"), &log);
    editor.addReactor(doomed.get());
    editor.addReactor(&survivor);
    const OdEditorReactor* address = doomed.get();

    doomed.reset();
    EXPECT_FALSE(editor.hasReactor(address));
    EXPECT_EQ(editor.reactorCount(), 1u);
    EXPECT_EQ(round(), QStringList({"survivor"}));
    const auto removed = recorder.events().named("reactor-removed");
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0].field("cause"), "destroyed");
    editor.removeReactor(&survivor);
}

TEST_F(EditorReactors, ANotificationRoundSurvivesReactorsLeavingDuringIt)
{
    Reactor first(QStringLiteral("first"), &log);
    Reactor second(QStringLiteral("second"), &log);
    Reactor third(QStringLiteral("third"), &log);
    auto fourth = std::make_unique<Reactor>(QStringLiteral("fourth"), &log);
    for (OdEditorReactor* reactor :
         std::vector<OdEditorReactor*>{&first, &second, &third, fourth.get()})
        editor.addReactor(reactor);

    // The first leaves, the second takes the third out and destroys the fourth.
    first.action = [&] { editor.removeReactor(&first); };
    second.action = [&] {
        editor.removeReactor(&third);
        fourth.reset();
    };
    EXPECT_EQ(round(), QStringList({"first", "second"}));
    EXPECT_EQ(round(), QStringList({"second"}));
    editor.removeReactor(&second);
}

TEST(EditorLifetime, AReactorOutlivingItsEditorCanStillBeDestroyed)
{
    QStringList log;
    auto reactor = std::make_unique<Reactor>(QStringLiteral("late"), &log);
    {
        OdEditor editor;
        editor.addReactor(reactor.get());
        EXPECT_TRUE(reactor->reactorAttachments().isAttached());
    }
    // Destroying it must not reach back into the editor that is gone.
    EXPECT_FALSE(reactor->reactorAttachments().isAttached());
    reactor.reset();
}
