#pragma once

// Identifiers that the module shares with the host's user interface and with its siblings: it
// finds its places by them, so each is written exactly as the host (or, for the Add-Ins row's
// buttons, the siblings) write it. The identifiers of the module's own entries and commands
// stay beside the code that makes them.

// The ribbon's application menu.
// The top entry, under which every other entry is looked for.
constexpr wchar_t kApplicationMenuTopId[] = L"RSM";
// The "Export" entry under the top entry. Two roles: the export-table entry goes among its
// sub-entries, and the publish entry goes among its siblings, right behind it.
constexpr wchar_t kExportMenuId[] = L"RSMI_10";
// The sub-entry of the "Export" entry that the export-table entry follows.
constexpr wchar_t kExportTableAnchorId[] = L"RSMI_13";

// The pull-down menus.
// The Help menu, the only pull-down menu the module adds to.
constexpr wchar_t kHelpMenuId[] = L"ID_MnHelp";
// The Help menu's online-support item, which the module's Help entries follow.
constexpr wchar_t kOnlineSupportItemId[] = L"PMI_330";

// The ribbon's system menu: its "About" entry, before which the module's block goes.
constexpr wchar_t kSystemMenuAboutId[] = L"RSYS_ABOUT";

// The ribbon.
// The Add-Ins tab, its panel and the row where sibling modules' buttons go.
constexpr wchar_t kAddInsTabId[] = L"ID_RibbonAddInsTab";
constexpr wchar_t kAddInsPanelId[] = L"ID_RibbonAddInsPanel";
constexpr wchar_t kAddInsRowId[] = L"ID_RibbonAddInsRow";
// The workspace whose tabs a newly created tab joins.
constexpr wchar_t kDraftingWorkspace[] = L"Drafting and Annotation";
// The data-management split button whose entries SetRibbonItemVisibility shows and hides.
constexpr wchar_t kDataManagementButtonId[] = L"ID_VAULTLINE_ITEM";
