#include "OdReactorAttachments.h"

#include <algorithm>

OdReactorHost::~OdReactorHost() = default;

OdReactorAttachments::OdReactorAttachments(const void* reactor) : m_reactor(reactor) {}

OdReactorAttachments::~OdReactorAttachments()
{
    const std::vector<OdReactorHost*> hosts = m_hosts;
    for (OdReactorHost* host : hosts)
        host->forgetDestroyedReactor(m_reactor);
}

void OdReactorAttachments::attached(OdReactorHost* host)
{
    if (std::find(m_hosts.begin(), m_hosts.end(), host) == m_hosts.end())
        m_hosts.push_back(host);
}

void OdReactorAttachments::detached(OdReactorHost* host)
{
    m_hosts.erase(std::remove(m_hosts.begin(), m_hosts.end(), host), m_hosts.end());
}
