#include "QuillonOmniplaneConnectorModule.h"

#include <OdRxWin32Module.h>

QuillonOmniplaneConnectorModule::QuillonOmniplaneConnectorModule() : m_view("OmniplaneView") {}

QuillonOmniplaneConnectorModule::~QuillonOmniplaneConnectorModule() = default;

void QuillonOmniplaneConnectorModule::initApp() {}

void QuillonOmniplaneConnectorModule::uninitApp()
{
    m_view.remove();
}

QuillonOmniplaneConnectorModule* QuillonOmniplaneConnectorModule::instance()
{
    return static_cast<QuillonOmniplaneConnectorModule*>(moduleSingleton);
}
