#pragma once

#include "OdReactorHost.h"
#include "TD_RootExport.h"

#include <vector>

// Kept by every reactor base: the hosts that the reactor is attached to. Its destructor runs
// when the reactor is destroyed and detaches the reactor from each host it is still on.
class TD_ROOT_EXPORT OdReactorAttachments
{
public:
    explicit OdReactorAttachments(const void* reactor);
    ~OdReactorAttachments();
    OdReactorAttachments(const OdReactorAttachments&) = delete;
    OdReactorAttachments& operator=(const OdReactorAttachments&) = delete;

    void attached(OdReactorHost* host);
    void detached(OdReactorHost* host);
    bool isAttached() const { return !m_hosts.empty(); }

private:
    const void* m_reactor;
    std::vector<OdReactorHost*> m_hosts;
};
