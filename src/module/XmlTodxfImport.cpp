// The module's import of the online connector's view.
#include "PlatformModuleImport.h"

#include <XmlTodxf.h>

bool XmlTodxf::addXmlTodxf()
{
    return PlatformModuleImport::call(XmlTodxfEntryPoints::module,
                                      XmlTodxfEntryPoints::addXmlTodxf);
}

bool XmlTodxf::removeXmlTodxf()
{
    return PlatformModuleImport::call(XmlTodxfEntryPoints::module,
                                      XmlTodxfEntryPoints::removeXmlTodxf);
}
