#pragma once

class CFxUI;
class CFxUICommand;
class CFxUIGroup;
struct RibbonItem;

// The user-interface commands of the buttons that siblings load.
class RibbonCommands
{
public:
    // The main group's command `item.id`; when there is none, a new one made from the
    // record's fields and added to the main group's commands.
    static CFxUICommand* findOrCreate(CFxUI& ui, CFxUIGroup& mainGroup, const RibbonItem& item);
};
