#pragma once

#include "OdEdCommand.h"
#include "OdEdCommandStackReactor.h"
#include "OdString.h"
#include "TD_RootExport.h"

#include <memory>
#include <vector>

class OdEdCommandContext;

// The host's commands, in the order in which they were added. Commands are lent: the stack
// holds a reference while a command is on it and gives it back when it is removed. Names
// are matched without regard to letter case, as a user types them.
class TD_ROOT_EXPORT OdEdCommandStack
{
public:
    enum LookupFlags
    {
        kGlobal = 1,
        kLocal = 2
    };

    OdEdCommandStack();
    ~OdEdCommandStack();
    OdEdCommandStack(const OdEdCommandStack&) = delete;
    OdEdCommandStack& operator=(const OdEdCommandStack&) = delete;

    // Throws OdError when the command's group already has a command of that global name.
    void addCommand(OdEdCommand* command);
    void removeCmd(OdEdCommand* command);
    void removeCmd(const OdString& groupName, const OdString& globalName);
    // Takes off every command whose class the library at `libraryPath` defines: what a module
    // being unloaded left on the stack would otherwise point into unmapped code.
    void removeCommandsDefinedIn(const OdString& libraryPath);
    // Looks a command up by its global and/or local name (flags), in one group or, with an
    // empty group name, in all of them; the first added wins.
    OdEdCommand* lookupCmd(const OdString& name, int flags = kGlobal | kLocal,
                           const OdString& groupName = OdString::kEmpty) const;
    std::vector<OdEdCommand*> commands() const;

    // Runs the command of that name (global or local) with `context`, telling the editor's
    // reactors before and after. Returns false when there is no such command.
    bool executeCommand(const OdString& name, OdEdCommandContext* context);

    void addReactor(OdEdCommandStackReactor* reactor);
    void removeReactor(OdEdCommandStackReactor* reactor);

private:
    std::vector<OdEdCommand*> m_commands;
    std::vector<OdEdCommandStackReactor*> m_reactors;
};

TD_ROOT_EXPORT OdEdCommandStack* odedRegCmds();
