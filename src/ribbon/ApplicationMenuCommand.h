#pragma once

#include <CFxString.h>

class CFxUI;
class CFxUICommand;

// The command behind an entry that the module puts into the application menu: its macro, its
// description and its two icons (without second paths). It stands in no group's command list;
// the entry holds it.
class ApplicationMenuCommand
{
public:
    static CFxUICommand* create(CFxUI& ui, const CFxString& identifier, const CFxString& macro,
                                const CFxString& description, const CFxString& largeIcon,
                                const CFxString& smallIcon);
};
