#pragma once

#include <QString>

#include <ExtCommands/RibbonItem.h>
#include <OdString.h>

// The module's exported ribbon interface, found by name in the module's library as a sibling
// finds it.
struct RibbonEntryPoints
{
    void (*load)(RibbonItem*, int) = nullptr;
    void (*unload)(const QString&) = nullptr;
    void (*setVisibility)(const QString&, bool) = nullptr;
    void (*loadExportTable)() = nullptr;
    void (*unloadExportTable)() = nullptr;

    // `libraryPath` names a module that is loaded already: opening it again only finds it, and
    // the reference taken is given back. Throws std::runtime_error naming a function the library
    // does not export.
    static RibbonEntryPoints find(const OdString& libraryPath);
};
