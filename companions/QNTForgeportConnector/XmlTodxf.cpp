#include "ForgeportViewContent.h"
#include "QNTForgeportConnectorModule.h"

#include <QCoreApplication>

#include <CompanionCall.h>
#include <XmlTodxf.h>

namespace {
// Everything handed to Qt or the host is built on the heap: this module may be unloaded while
// they still hold it.
void report(const char* call)
{
    reportCompanionCall(QString::fromLatin1(XmlTodxfEntryPoints::module),
                        QString::fromLatin1(call));
}
} // namespace

bool XmlTodxf::addXmlTodxf()
{
    report("addXmlTodxf");
    QNTForgeportConnectorModule* module = QNTForgeportConnectorModule::instance();
    return module && module->view().add(QCoreApplication::translate("XmlTodxf", "Forgeport"),
                                        &ForgeportViewContent::create);
}

bool XmlTodxf::removeXmlTodxf()
{
    report("removeXmlTodxf");
    QNTForgeportConnectorModule* module = QNTForgeportConnectorModule::instance();
    return module && module->view().remove();
}
