#pragma once

#include "CompanionDock.h"

#include <OdRxModule.h>

// The connector's module object. It owns the connector's view in the host's main window, and
// takes it out before the module's code is unloaded: the view's widgets call into that code.
class QuillonOmniplaneConnectorModule : public OdRxModule
{
public:
    QuillonOmniplaneConnectorModule();
    ~QuillonOmniplaneConnectorModule() override;

    void initApp() override;
    void uninitApp() override;

    // The loaded module object; null while the platform has not created it.
    static QuillonOmniplaneConnectorModule* instance();

    CompanionDock& view() { return m_view; }

private:
    CompanionDock m_view;
};
