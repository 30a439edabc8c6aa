#pragma once

#include "OdReactorAttachments.h"
#include "OdReactorHost.h"

#include <algorithm>
#include <functional>
#include <vector>

// The reactors attached to one host, in attachment order. R must offer
// reactorAttachments(). Notifying goes over a snapshot and skips reactors that were
// detached (or destroyed) by an earlier notification of the same round.
template <class R>
class OdReactorList : public OdReactorHost
{
public:
    // Called when a reactor is destroyed while still attached.
    explicit OdReactorList(std::function<void(R*)> onForgotten = {})
        : m_onForgotten(std::move(onForgotten))
    {}
    OdReactorList(const OdReactorList&) = delete;
    OdReactorList& operator=(const OdReactorList&) = delete;
    ~OdReactorList()
    {
        for (R* reactor : m_reactors)
            reactor->reactorAttachments().detached(this);
    }

    bool add(R* reactor)
    {
        if (!reactor || contains(reactor))
            return false;
        m_reactors.push_back(reactor);
        reactor->reactorAttachments().attached(this);
        return true;
    }

    bool remove(R* reactor)
    {
        const auto at = std::find(m_reactors.begin(), m_reactors.end(), reactor);
        if (at == m_reactors.end())
            return false;
        m_reactors.erase(at);
        reactor->reactorAttachments().detached(this);
        return true;
    }

    bool contains(const R* reactor) const
    {
        return std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end();
    }

    std::size_t size() const { return m_reactors.size(); }

    template <class Notification>
    void notify(Notification notification)
    {
        const std::vector<R*> snapshot = m_reactors;
        for (R* reactor : snapshot) {
            if (contains(reactor))
                notification(reactor);
        }
    }

    void forgetDestroyedReactor(const void* reactor) override
    {
        const auto at = std::find_if(m_reactors.begin(), m_reactors.end(), [reactor](R* candidate) {
            return static_cast<const void*>(candidate) == reactor;
        });
        if (at == m_reactors.end())
            return;
        R* forgotten = *at;
        m_reactors.erase(at);
        if (m_onForgotten)
            m_onForgotten(forgotten);
    }

private:
    std::vector<R*> m_reactors;
    std::function<void(R*)> m_onForgotten;
};
