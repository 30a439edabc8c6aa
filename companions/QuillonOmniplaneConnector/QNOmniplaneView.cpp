#include "OmniplaneViewContent.h"
#include "QuillonOmniplaneConnectorModule.h"

#include <QCoreApplication>
#include <QNOmniplaneView.h>

#include <CompanionCall.h>

bool QNOmniplaneView::addQNOmniplaneView()
{
    // Everything handed to Qt or the host is built on the heap: this module may be unloaded
    // while they still hold it.
    reportCompanionCall(QString::fromLatin1(QNOmniplaneViewEntryPoints::module),
                        QString::fromLatin1("addQNOmniplaneView"));
    QuillonOmniplaneConnectorModule* module = QuillonOmniplaneConnectorModule::instance();
    return module && module->view().add(QCoreApplication::translate("QNOmniplaneView", "Omniplane"),
                                        &OmniplaneViewContent::create);
}
