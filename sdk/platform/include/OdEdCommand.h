#pragma once

#include "OdRxObject.h"
#include "OdString.h"
#include "TD_RootExport.h"

class OdEdCommandContext;
class OdRxModule;

// A command on the command stack. The global name is language-independent; the local name
// is what a user of the host's language types.
class TD_ROOT_EXPORT OdEdCommand : public OdRxObject
{
public:
    enum Flags
    {
        kModal = 0,
        kTransparent = 1,
        kNoUndoMarker = 2
    };

    ~OdEdCommand() override;

    virtual const OdString groupName() const = 0;
    virtual const OdString globalName() const = 0;
    virtual const OdString localName() const;
    virtual void execute(OdEdCommandContext* context) = 0;
    // The loaded module whose library defines this command's class; null for the host's own.
    virtual OdRxModule* module() const;
    // An undefined command is not found by its local name any more, only by its global name.
    virtual void undefine(bool undefined);
    virtual int flags() const;

    bool isUndefined() const { return m_undefined; }

private:
    bool m_undefined = false;
};
