#pragma once

#include "FxKernelExport.h"

#include <OdEdCommandStackReactor.h>
#include <OdEdLispEngineReactor.h>
#include <OdEditorReactor.h>

class QWidget;

// The host's editor reactor: the platform's editor, command-stack and LISP notifications,
// plus the host's main-window notifications.
class FX_KERNEL_EXPORT CFxEditorReactor : public OdEditorReactor,
                                          public OdEdCommandStackReactor,
                                          public OdEdLispEngineReactor
{
public:
    CFxEditorReactor();
    ~CFxEditorReactor() override;

    // The host's main window has been created.
    virtual void mainFrameCreated(QWidget* mainFrame);
    // The host's main window is about to be destroyed.
    virtual void mainFrameDestroyed(QWidget* mainFrame);
};
