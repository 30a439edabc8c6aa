#pragma once

class CFxUI;
class CFxUIGroup;

// The host's main group: the one that holds its own ribbon, commands and application menu.
class HostMainGroup
{
public:
    // The first group of `ui` that is the main group; null for a null `ui` or when none is.
    static CFxUIGroup* find(const CFxUI* ui);
};
