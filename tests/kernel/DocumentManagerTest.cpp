// The document manager: numbering, which document is active after opening and closing, the
// order in which its reactors hear of it, and reactors that leave or die while attached.
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxHostDocumentManager.h>
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
    // The reactors are destroyed before the manager, and detach themselves.
    void SetUp() override { manager.AddReactor(&reactor); }

    int open(const char* path) { return manager.OpenDocument(path)->GetIndex(); }
    int active() const
    {
        return manager.GetActiveDocument() ? manager.GetActiveDocument()->GetIndex() : 0;
    }

    CFxHostDocumentManager manager;
    QStringList log;
    LoggingReactor reactor{QString(), &log};
};

TEST_F(DocumentManager, NeverReusesANumberAndActivatesTheLatestLeftWhenTheActiveOneCloses)
{
    EXPECT_EQ(open("a"), 1);
    EXPECT_EQ(open("b"), 2);
    EXPECT_TRUE(manager.CloseDocument(2));
    EXPECT_FALSE(manager.CloseDocument(2));
    EXPECT_EQ(manager.GetDocument(2), nullptr);
    EXPECT_EQ(open("c"), 3);
    open("d");
    open("e");
    manager.ActivateDocument(1);
    manager.CloseDocument(5);
    EXPECT_EQ(active(), 1);
    manager.CloseDocument(1);
    EXPECT_EQ(active(), 4);
    manager.CloseDocument(3);
    manager.CloseDocument(4);
    EXPECT_EQ(active(), 0);
    EXPECT_EQ(log.join(", "), "created 1, activated 1, created 2, activated 2, closing 2, "
                              "activated 1, created 3, activated 3, created 4, activated 4, "
                              "created 5, activated 5, activated 1, closing 5, closing 1, "
                              "activated 4, closing 3, closing 4");
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
}
