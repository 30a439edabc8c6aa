#pragma once

#include <CFxDocumentManagerReactor.h>
#include <CFxTracker.h>

// Carries the start-up decision between the crash-report companion's installation check and
// its reminder to the first activation of a document, when the host's main window is ready
// for the companion's questions; acts once and then detaches itself.
class TarnCrashReportEditorReactor : public CFxTracker, public CFxDocumentManagerReactor
{
public:
    explicit TarnCrashReportEditorReactor(bool installCheck);

    // Never used as a tracker.
    void OnTrackingStarted() override {}
    void OnTrackingEnded() override {}

    void DocumentCreated(CFxDocument* document) override;
    void DocumentToBeDestroyed(CFxDocument* document) override;
    void DocumentActivated(CFxDocument* document) override;

private:
    bool installCheck;
};
