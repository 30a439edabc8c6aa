#pragma once

#include <CFxEditorReactor.h>

// The module's editor reactor: does the module's work on the host's main window when the
// window is created and takes it out again before the window goes.
class CFxExtCommands : public CFxEditorReactor
{
public:
    CFxExtCommands();
    ~CFxExtCommands() override;
};
