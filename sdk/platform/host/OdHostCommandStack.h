#pragma once

#include "OdEdCommandStack.h"
#include "OdEdCommandStackReactor.h"
#include "TD_RootExport.h"

#include <vector>

class OdEdCommandContext;

// The host's side of the command stack that modules see as OdEdCommandStack: it runs the
// commands the user types, lists them, tells its reactors of commands coming and going, and
// takes off the commands of a module whose library is being unloaded.
class TD_ROOT_EXPORT OdHostCommandStack final : public OdEdCommandStack
{
public:
    OdHostCommandStack();
    ~OdHostCommandStack() override;

    void addCommand(OdEdCommand* command) override;
    void removeCmd(OdEdCommand* command) override;
    OdEdCommand* lookupCmd(const OdString& name, int flags = kGlobal | kLocal,
                           const OdString& groupName = OdString::kEmpty) const override;

    void removeCmd(const OdString& groupName, const OdString& globalName);
    // Takes off every command whose class the library at `libraryPath` defines: what a module
    // being unloaded left on the stack would otherwise point into unmapped code.
    void removeCommandsDefinedIn(const OdString& libraryPath);
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

// The one command stack, which odedRegCmds() hands to modules.
TD_ROOT_EXPORT OdHostCommandStack* odedHostRegCmds();
