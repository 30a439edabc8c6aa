// The module's entry points: the platform's two, and the view's, which modules reach in the
// loaded module by name.
#include "QuillonOmniplaneConnectorModule.h"

#include <QNOmniplaneView.h>

#include <RxDynamicModule.h>
#include <TarnCompanionExport.h>

ODRX_DEFINE_DYNAMIC_MODULE(QuillonOmniplaneConnectorModule)

TARN_COMPANION_EXPORT bool QNOmniplaneView_addQNOmniplaneView()
{
    return QNOmniplaneView().addQNOmniplaneView();
}
