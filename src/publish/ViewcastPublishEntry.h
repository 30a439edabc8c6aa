#pragma once

// The "Publish Viewcast" entry of the ribbon's application menu, which runs the publishing
// command. Put in place when the host's main window has been created and taken out before it
// goes.
class ViewcastPublishEntry
{
public:
    void add();
    void remove();
};
