#include "QNTForgeportConnectorModule.h"

#include <OdRxWin32Module.h>

QNTForgeportConnectorModule::QNTForgeportConnectorModule() : m_view("ForgeportView") {}

QNTForgeportConnectorModule::~QNTForgeportConnectorModule() = default;

void QNTForgeportConnectorModule::initApp() {}

void QNTForgeportConnectorModule::uninitApp()
{
    m_view.remove();
}

QNTForgeportConnectorModule* QNTForgeportConnectorModule::instance()
{
    return static_cast<QNTForgeportConnectorModule*>(moduleSingleton);
}
