#pragma once

// The "Publish Viewcast" entry of the ribbon's application menu, which runs the publishing
// command. Put in place when the host's main window has been created and taken out before it
// goes.
class ViewcastPublishEntry
{
public:
    // Puts a separator and the entry "RSMI_PUBVIEWCAST" right behind the export menu (or after
    // the last entry of the application menu without it); nothing when the entry is there
    // already.
    void add();
    // Takes out the application menu's first separator, then the entry. The command stays.
    void remove();
};
