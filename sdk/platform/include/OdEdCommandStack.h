#pragma once

#include "OdEdCommand.h"
#include "OdString.h"
#include "TD_RootExport.h"

// The host's commands, as a module reaches them through odedRegCmds(). Commands are lent: the
// stack holds a reference while a command is on it and gives it back when it is removed.
// Names are matched without regard to letter case, as a user types them.
class TD_ROOT_EXPORT OdEdCommandStack
{
public:
    enum LookupFlags
    {
        kGlobal = 1,
        kLocal = 2
    };

    OdEdCommandStack(const OdEdCommandStack&) = delete;
    OdEdCommandStack& operator=(const OdEdCommandStack&) = delete;

    // Throws OdError when the command's group already has a command of that global name.
    virtual void addCommand(OdEdCommand* command) = 0;
    virtual void removeCmd(OdEdCommand* command) = 0;
    // Looks a command up by its global and/or local name (flags), in one group or, with an
    // empty group name, in all of them; the first added wins.
    virtual OdEdCommand* lookupCmd(const OdString& name, int flags = kGlobal | kLocal,
                                   const OdString& groupName = OdString::kEmpty) const = 0;

protected:
    OdEdCommandStack();
    virtual ~OdEdCommandStack();
};

TD_ROOT_EXPORT OdEdCommandStack* odedRegCmds();
