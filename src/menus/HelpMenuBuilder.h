#pragma once

#include "locale/qnCheckforUpdates.h"
#include "locale/qnQuillonReleaseNotes.h"

#include <OdStaticRxObject.h>

// The module's two Help-menu entries, the update check and the release notes: in the host's
// Help menu and in the ribbon's system menu, with the commands they run. Put in place when
// the host's main window has been created. Before it goes, `remove` takes out the Help-menu
// entries and the commands. Kept: docs/lifecycle.md, rows "System-menu block" and "Help menu
// items".
class HelpMenuBuilder
{
public:
    void add();
    void remove();

private:
    // Registered only when no command of the name is known yet, so that a command that
    // another module registered first is the one the entries run.
    OdStaticRxObject<qnCheckforUpdates> m_checkForUpdates;
    OdStaticRxObject<qnQuillonReleaseNotes> m_releaseNotes;
};
