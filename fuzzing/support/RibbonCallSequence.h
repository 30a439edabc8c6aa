#pragma once

#include <ExtCommands/RibbonItem.h>
#include <fuzzer/FuzzedDataProvider.h>

#include <memory>
#include <vector>

class ModuleUnderTest;

// Plays the input as a sibling (or several) would: loads, unloads, visibility switches, the
// export-table entry, main windows created and destroyed, in any order, with records made from
// the input's bytes; after every call the UI model must still keep what siblings rely on.
//
// What the harness keeps fixed, because the module's placement rules presuppose it: the
// ordered identifiers (the Add-Ins buttons that the ribbon orders) are always loaded into the
// Add-Ins row, and no text made from the input starts with the hidden mark "~".
class RibbonCallSequence
{
public:
    RibbonCallSequence(ModuleUnderTest& module, FuzzedDataProvider& input);
    void play();

private:
    void step();
    void loadRecord();
    void checkAfter(bool unloaded);
    RibbonItem* makeRecord(int depth);
    QString identifier();
    QString text();

    ModuleUnderTest& m_module;
    FuzzedDataProvider& m_input;
    std::vector<std::unique_ptr<RibbonItem>> m_records;
};
