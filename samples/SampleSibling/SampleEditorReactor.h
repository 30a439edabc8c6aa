#pragma once

#include <CFxEditorReactor.h>

class SampleRibbon;

// Loads the sample's own buttons when the host's main window is created: the ribbon they go on
// belongs to the window, and ExtCommands, whose reactor was attached before this one, has made
// the Add-Ins tab by then. The buttons stay in the host's model when the window goes, and the
// next window shows them (loading them again changes nothing).
class SampleEditorReactor : public CFxEditorReactor
{
public:
    explicit SampleEditorReactor(SampleRibbon& ribbon);

    void mainFrameCreated(QWidget* mainFrame) override;

private:
    SampleRibbon& m_ribbon;
};
