// The editor's safety net for reactors that go away while attached or during a notification
// round.
#include "EventRecorder.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <OdHostEditor.h>
#include <OdStaticRxObject.h>

#include <functional>
#include <memory>
#include <vector>

namespace {
// Logs each command start it hears of, then does once what the test asks of it.
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

TEST(EditorReactors, ReactorsLeavingOrDestroyedAreForgottenEvenDuringARoundOrAfterTheEditor)
{
    EventRecorder recorder;
    QStringList log;
    auto editor = std::make_unique<OdHostEditor>();
    const auto round = [&] {
        log.clear();
        editor->notify(
            [](OdEditorReactor* reactor) { reactor->commandWillStart(OdString(L"_X")); });
        return log;
    };
    Reactor first(QStringLiteral("first"), &log);
    auto second = std::make_unique<Reactor>(QStringLiteral("second"), &log);
    Reactor third(QStringLiteral("third"), &log);
    auto fourth = std::make_unique<Reactor>(QStringLiteral("fourth"), &log);
    auto doomed = std::make_unique<Reactor>(QStringLiteral("doomed"), &log);
    for (OdEditorReactor* reactor :
         std::vector<OdEditorReactor*>{&first, second.get(), &third, fourth.get(), doomed.get()})
        editor->addReactor(reactor);
    doomed.reset();
    EXPECT_EQ(recorder.events().values("reactor-removed", "cause"), QStringList{"destroyed"});

    // The first leaves, the second takes the third out and destroys the fourth.
    first.action = [&] { editor->removeReactor(&first); };
    second->action = [&] {
        editor->removeReactor(&third);
        fourth.reset();
    };
    EXPECT_EQ(round(), QStringList({"first", "second"}));
    EXPECT_EQ(round(), QStringList({"second"}));
    EXPECT_EQ(editor->reactorCount(), 1u);

    // The second outlives the editor: destroying it must not reach back into the editor, which
    // would report it forgotten (or, in the sanitizer build, touch freed memory).
    editor.reset();
    const int removals = recorder.events().count(QStringLiteral("reactor-removed"));
    second.reset();
    EXPECT_EQ(recorder.events().count(QStringLiteral("reactor-removed")), removals);
}
