#pragma once

#include <QString>

#include <ExtCommands/RibbonItem.h>

class QWidget;

// The ExtCommands module loaded afresh through the platform's dynamic linker (its tables start
// empty), over a host UI read from the host's default profile, with the exported functions
// found by name, as a sibling finds them. Unloading takes the module and the UI away again,
// with the translators that its main windows installed.
class ModuleUnderTest
{
public:
    ModuleUnderTest();
    ~ModuleUnderTest();
    ModuleUnderTest(const ModuleUnderTest&) = delete;
    ModuleUnderTest& operator=(const ModuleUnderTest&) = delete;

    void mainFrameCreated();
    void mainFrameDestroyed();

    void (*load)(RibbonItem*, int) = nullptr;
    void (*unload)(const QString&) = nullptr;
    void (*setVisibility)(const QString&, bool) = nullptr;
    void (*loadExportTable)() = nullptr;
    void (*unloadExportTable)() = nullptr;

private:
    void resolveEntries();
    static void dropTranslators();

    QWidget* m_mainFrame;
};
