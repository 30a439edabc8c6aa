#pragma once

#include "CFxString.h"
#include "FxKernelExport.h"

// A tracker follows an interactive operation of the user (a drag, a regeneration that can be
// aborted). A tracker that is never started needs only the two pure operations.
class FX_KERNEL_EXPORT CFxTracker
{
public:
    CFxTracker();
    virtual ~CFxTracker();

    virtual void OnTrackingStarted() = 0;
    virtual void OnTrackingEnded() = 0;
    virtual bool CheckRegenAbort();
    virtual CFxString GetName() const;
    virtual bool IsEager() const;
    virtual void DoAction();
    virtual void OnMainSelectionSetChanged();
};
