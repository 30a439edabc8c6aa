// The module's import of the collaboration-platform connector's view.
#include "PlatformModuleImport.h"

#include <QNOmniplaneView.h>

bool QNOmniplaneView::addQNOmniplaneView()
{
    return PlatformModuleImport::call(QNOmniplaneViewEntryPoints::module,
                                      QNOmniplaneViewEntryPoints::addQNOmniplaneView);
}
