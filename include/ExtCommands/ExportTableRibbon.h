#pragma once

#include "ExtCommandsExport.h"

class CFxString;
class CFxUI;
class CFxUIGroup;
class CFxUIRibbonSystemMenuItem;

// The "Export Table" entry of the ribbon's application menu, for the sibling module that
// provides the "_EXPORTTABLE" command. One instance per process, made on first use and never
// destroyed; whether the entry is there is read from the host's menu each time.
class EXTCOMMANDS_EXPORT ExportTableRibbon
{
public:
    static ExportTableRibbon* GetExportTableInstance();

    // The first group of `ui` that is the host's main group; null for a null `ui` or none.
    CFxUIGroup* GetMainGroup(CFxUI* ui);
    // The first direct sub-entry of `parent` whose identifier is `id`, in any letter case.
    CFxUIRibbonSystemMenuItem* SearchRibbonMenuItem(CFxUIRibbonSystemMenuItem* parent,
                                                    const CFxString& id);
    // Puts a separator and the entry after "RSMI_13" under "RSMI_10"; nothing when the entry
    // is there already.
    void LoadExportTableRibbonMenu();
    // Takes the entry out again. The separator and the command stay.
    void UnLoadExportTableRibbonMenu();

private:
    ExportTableRibbon() = default;
};

extern "C" {
EXTCOMMANDS_EXPORT void LoadExportTableRibbonMenuWrapper();
EXTCOMMANDS_EXPORT void UnLoadExportTableRibbonMenuWrapper();
}
