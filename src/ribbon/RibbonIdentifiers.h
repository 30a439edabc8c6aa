#pragma once

// Identifiers of the host's ribbon that the exported ribbon functions are tied to.

// The Add-Ins tab, its panel and the row where sibling modules' buttons go.
constexpr const wchar_t kAddInsTabId[] = L"ID_RibbonAddInsTab";
constexpr const wchar_t kAddInsPanelId[] = L"ID_RibbonAddInsPanel";
constexpr const wchar_t kAddInsRowId[] = L"ID_RibbonAddInsRow";

// The workspace whose tabs a newly created tab joins.
constexpr const wchar_t kDraftingWorkspace[] = L"Drafting and Annotation";

// The data-management split button whose entries SetRibbonItemVisibility shows and hides.
constexpr const wchar_t kDataManagementButtonId[] = L"ID_VAULTLINE_ITEM";
