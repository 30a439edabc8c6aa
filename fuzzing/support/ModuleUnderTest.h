#pragma once

#include "RibbonEntryPoints.h"

#include <QString>

#include <ExtCommands/RibbonItem.h>

class QJsonObject;
class QWidget;

// The ExtCommands module, loaded through the platform's dynamic linker, over a host UI built
// afresh from the host's default profile for each input, with the exported functions found by
// name, as a sibling finds them.
//
// libFuzzer cannot follow a library that is unloaded and loaded again (it would clear the
// coverage counters of the unmapped copy), so the module is loaded once for the process. What
// it keeps between calls (the ribbon's loaded-item table) is emptied through its own interface
// when an input ends, and the UI and the translators that its main windows installed go with
// the input: each input starts where a freshly loaded module starts. The profile file is read
// once, and the main window is one widget for the whole process.
class ModuleUnderTest : public RibbonEntryPoints
{
public:
    ModuleUnderTest();
    ~ModuleUnderTest();
    ModuleUnderTest(const ModuleUnderTest&) = delete;
    ModuleUnderTest& operator=(const ModuleUnderTest&) = delete;

    void mainFrameCreated();
    void mainFrameDestroyed();

private:
    static const QJsonObject& defaultProfile();
    static QWidget* mainFrame();
    static void loadModule();
    void resolveEntries();
    void emptyLoadedItems();
    static void dropTranslators();

    bool m_mainFrameShown;
};
