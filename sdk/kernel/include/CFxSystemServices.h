#pragma once

#include "CFxDocumentManager.h"
#include "CFxString.h"
#include "FxKernelExport.h"

#include <QString>
#include <QUuid>

class CFxUI;

// What a module may ask of the host, through GetFxSystemServices(): only questions and the
// message box. Setting these values up and telling reactors about the main window belong to the
// host alone, so a module cannot reach them by mistake.
class FX_KERNEL_EXPORT CFxSystemServices
{
public:
    virtual ~CFxSystemServices();
    CFxSystemServices(const CFxSystemServices&) = delete;
    CFxSystemServices& operator=(const CFxSystemServices&) = delete;

    // The product version's four numbers: release, service release, service pack, build.
    virtual void GetProductVersion(int& release, int& serviceRelease, int& servicePack,
                                   int& build) const = 0;
    // The user-interface language id of the host's language setting (0 means "System").
    virtual int GetCurrentLanguageId() const = 0;
    virtual CFxDocumentManager* GetDocumentManager() = 0;
    // Shows a message to the user and returns the button chosen (1 for OK).
    virtual int FxMessageBox(const CFxString& text, const CFxString& caption, int flags) = 0;
    // The host's user-interface model, or null while it has none.
    virtual CFxUI* GetUI() const = 0;
    // The identifier of this installation of the host (handed to the task pane).
    virtual QUuid GetInstallationId() const = 0;

protected:
    CFxSystemServices();
};

FX_KERNEL_EXPORT CFxSystemServices* GetFxSystemServices();
