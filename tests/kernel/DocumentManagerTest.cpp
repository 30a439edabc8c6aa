// The document manager: numbering, which document is active after opening and closing, the
// order in which its reactors hear of it, and reactors that leave or die while attached.
#include "EventRecorder.h"

#include <gtest/gtest.h>

#include <CFxDocumentManager.h>
#include <CFxTracker.h>

#include <functional>
#include <memory>

namespace {
class LoggingReactor : public CFxDocumentManagerReactor
{
public:
    LoggingReactor(QString name, QStringList* log) : m_name(std::move(name)), m_log(log) {}

    void DocumentCreated(CFxDocument* document) override { add("created", document); }
    void DocumentToBeDestroyed(CFxDocument* document) override { add("closing", document); }
    void DocumentActivated(CFxDocument* document) override
    {
        add("activated", document);
        if (onActivated)
            onActivated();
    }
    void DocumentsClosed() override { m_log->append(m_name + "none left"); }

    std::function<void()> onActivated;

private:
    void add(const char* what, const CFxDocument* document)
    {
        m_log->append(m_name + QString::fromLatin1(what) + ' ' +
                      QString::number(document->GetIndex()));
    }

    QString m_name;
    QStringList* m_log;
};

// Like the module's crash-report reactor: the reactor base is not the first base.
class TrackingReactor : public CFxTracker, public LoggingReactor
{
public:
    using LoggingReactor::LoggingReactor;
    void OnTrackingStarted() override {}
    void OnTrackingEnded() override {}
};
} // namespace

class DocumentManager : public ::testing::Test
{
protected:
    void SetUp() override { manager.AddReactor(&reactor); }
    void TearDown() override { manager.RemoveReactor(&reactor); }

    int open(const char* path) { return manager.OpenDocument(path)->GetIndex(); }
    int active() const
    {
        return manager.GetActiveDocument() ? manager.GetActiveDocument()->GetIndex() : 0;
    }

    EventRecorder recorder;
    CFxDocumentManager manager;
    QStringList log;
    LoggingReactor reactor{QString(), &log};
};

TEST_F(DocumentManager, NumbersDocumentsInOpeningOrderAndNeverReusesANumber)
{
    EXPECT_EQ(open("/d/a.dxf"), 1);
    EXPECT_EQ(open("/d/b.dxf"), 2);
    EXPECT_TRUE(manager.CloseDocument(2));
    EXPECT_EQ(open("/d/c.dxf"), 3);
    EXPECT_EQ(manager.GetDocument(2), nullptr);
    EXPECT_EQ(manager.GetDocument(3)->GetPathName(), "/d/c.dxf");
    EXPECT_EQ(manager.GetDocumentCount(), 2);
    EXPECT_FALSE(manager.CloseDocument(2));
    EXPECT_FALSE(manager.ActivateDocument(7));
    EXPECT_EQ(recorder.events().describe({"document-opened", "document-closed"}, "path"),
              QStringList({"document-opened:/d/a.dxf", "document-opened:/d/b.dxf",
                           "document-closed:/d/b.dxf", "document-opened:/d/c.dxf"}));
}

TEST_F(DocumentManager, ActivatesWhatWasOpenedAndTheLatestLeftWhenTheActiveOneCloses)
{
    open("a");
    open("b");
    open("c");
    open("d");
    EXPECT_EQ(active(), 4);
    manager.ActivateDocument(1);
    manager.CloseDocument(4);
    EXPECT_EQ(active(), 1);
    manager.CloseDocument(1);
    EXPECT_EQ(active(), 3);
    manager.CloseDocument(2);
    manager.CloseDocument(3);
    EXPECT_EQ(active(), 0);
    EXPECT_EQ(log.join(", "), "created 1, activated 1, created 2, activated 2, created 3, "
                              "activated 3, created 4, activated 4, activated 1, closing 4, "
                              "closing 1, activated 3, closing 2, closing 3, none left");
}

TEST_F(DocumentManager, AReactorThatLeavesOnItsFirstActivationLetsTheOthersHearIt)
{
    LoggingReactor once(QStringLiteral("once: "), &log);
    LoggingReactor after(QStringLiteral("after: "), &log);
    manager.AddReactor(&once);
    manager.AddReactor(&after);
    once.onActivated = [&] { manager.RemoveReactor(&once); };

    open("a");
    manager.ActivateDocument(1);
    EXPECT_EQ(log.filter("activated"),
              QStringList({"activated 1", "once: activated 1", "after: activated 1", "activated 1",
                           "after: activated 1"}));
    EXPECT_FALSE(manager.HasReactor(&once));
    manager.RemoveReactor(&after);
}

TEST_F(DocumentManager, AReactorDestroyedWhileAttachedIsForgotten)
{
    auto doomed = std::make_unique<TrackingReactor>(QStringLiteral("doomed: "), &log);
    manager.AddReactor(doomed.get());
    const CFxDocumentManagerReactor* address = doomed.get();
    doomed.reset();

    EXPECT_FALSE(manager.HasReactor(address));
    open("a");
    EXPECT_EQ(log, QStringList({"created 1", "activated 1"}));
    EXPECT_EQ(recorder.events().describe({"reactor-added", "reactor-removed"}, "cause"),
              QStringList({"reactor-added", "reactor-added", "reactor-removed:destroyed"}));
    EXPECT_EQ(recorder.events().values("reactor-removed", "kind"),
              QStringList({"document-manager"}));
}
