#pragma once

#include "CompanionDock.h"

#include <OdRxModule.h>

// The connector's module object. It owns the connector's view in the host's main window, and
// takes it out before the module's code is unloaded, should the module go before the view was
// removed.
class QNTForgeportConnectorModule : public OdRxModule
{
public:
    QNTForgeportConnectorModule();
    ~QNTForgeportConnectorModule() override;

    void initApp() override;
    void uninitApp() override;

    // The loaded module object; null while the platform has not created it.
    static QNTForgeportConnectorModule* instance();

    CompanionDock& view() { return m_view; }

private:
    CompanionDock m_view;
};
