// The module's entry points: the platform's two, and the view's, which modules reach in the
// loaded module by name.
#include "QNTForgeportConnectorModule.h"

#include <RxDynamicModule.h>
#include <TarnCompanionExport.h>
#include <XmlTodxf.h>

ODRX_DEFINE_DYNAMIC_MODULE(QNTForgeportConnectorModule)

TARN_COMPANION_EXPORT bool XmlTodxf_addXmlTodxf()
{
    return XmlTodxf().addXmlTodxf();
}

TARN_COMPANION_EXPORT bool XmlTodxf_removeXmlTodxf()
{
    return XmlTodxf().removeXmlTodxf();
}
