#pragma once

class CFxUI;
class CFxUIRibbonSystemMenuItem;

// The "Publish Viewcast" entry of the ribbon's application menu, which runs the publishing
// command. Put in place when the host's main window has been created and taken out before it
// goes.
class ViewcastPublishEntry
{
public:
    // Puts a separator and the entry "RSMI_PUBVIEWCAST" after "RSMI_10" (or after the last
    // entry of the application menu without it); nothing when the entry is there already.
    void add();
    // Takes out the application menu's first separator, then the entry. The command stays.
    void remove();

private:
    // The application menu's top entry "RSM"; null without a main group.
    static CFxUIRibbonSystemMenuItem* applicationMenu(CFxUI* ui);
};
