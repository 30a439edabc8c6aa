// The "Export Table" entry of the application menu, put in and taken out through the module's
// exported functions.
#include "RibbonHost.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {
const QStringList kExports{"RSM", "RSMI_10"};

QStringList entries(const RibbonHost& host, const QStringList& path = kExports)
{
    const CFxUIRibbonSystemMenuItem* menu = menuEntry(host.mainGroup(), path);
    return menu ? ids(menu->GetSubItems()) : QStringList{"<no menu>"};
}

// The export menu's entries as "ID" or "ID text", so that look-alikes can be told apart.
QStringList entriesWithTexts(const RibbonHost& host)
{
    QStringList result;
    for (const CFxUIRibbonSystemMenuItem* entry :
         menuEntry(host.mainGroup(), kExports)->GetSubItems())
        result << QStringList{entry->GetIdentifier().toQString(), entry->GetText().toQString()}
                      .join(' ')
                      .trimmed();
    return result;
}

// Makes the export menu hold exactly `entries`, each "ID" or "ID text", as a profile would.
void fillExportMenu(RibbonHost& host, const QStringList& entries)
{
    CFxUIList<CFxUIRibbonSystemMenuItem>& list =
        menuEntry(host.mainGroup(), kExports)->GetSubItems();
    while (list.GetCount() > 0)
        list.Remove(list.GetAt(0));
    for (const QString& entry : entries) {
        CFxUIRibbonSystemMenuItem* item =
            host.ui().CreateRibbonSystemMenuItem(entry.section(' ', 0, 0));
        item->SetText(entry.section(' ', 1));
        list.Append(item);
    }
}
} // namespace

// Kept: docs/lifecycle.md, row "Export-table entry".
TEST(ExportTableEntry, GoesAfterRSMI13OnceAndUnloadingTakesOutTheEntryButNotItsSeparator)
{
    RibbonHost host;
    host.unloadExportTable();
    host.loadExportTable();
    host.loadExportTable();
    EXPECT_EQ(entries(host), (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR",
                                          "RSMI_EXPORTTABLE", "RSMI_14"}));
    const CFxUIRibbonSystemMenuItem* entry =
        menuEntry(host.mainGroup(), kExports + QStringList{"RSMI_EXPORTTABLE"});
    EXPECT_EQ(entry->GetText().toQString(), "Export Table");
    const CFxUICommand* command = entry->GetCommand();
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->GetMacro().toQString(), "_EXPORTTABLE");
    EXPECT_EQ(command->GetDescription().toQString(),
              "Export table entity to .xlsx, .xls, .csv file");
    EXPECT_EQ(command->GetLargeIcon().toQString(),
              ":/images/BFResources/Resources/PK_BOM_EXPORT_large.png");
    EXPECT_EQ(command->GetSmallIcon().toQString(),
              ":/images/BFResources/Resources/PK_BOM_EXPORT_small.png");

    host.unloadExportTable();
    EXPECT_EQ(entries(host),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}));
    host.loadExportTable();
    EXPECT_EQ(entries(host), (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR",
                                          "RSMI_EXPORTTABLE", "ID_SEPARATOR", "RSMI_14"}));
}

// Kept: docs/lifecycle.md, rows "Look-up rules" and "Anchor stand-ins".
TEST(ExportTableEntry, GoesIntoEveryRSMI10InAnyLetterCaseAfterItsLastEntryWithoutRSMI13)
{
    RibbonHost host;
    CFxUIRibbonSystemMenuItem* top = menuEntry(host.mainGroup(), {"RSM"});
    CFxUIRibbonSystemMenuItem* exports = menuEntry(host.mainGroup(), kExports);
    exports->GetSubItems().Remove(exactly(exports->GetSubItems(), "RSMI_13"));
    exports->SetIdentifier("rsmi_10");
    top->GetSubItems().Append(host.ui().CreateRibbonSystemMenuItem("Rsmi_10"));
    top->SetIdentifier("rsm");
    host.loadExportTable();
    EXPECT_EQ(entries(host, {"rsm", "rsmi_10"}),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_14", "ID_SEPARATOR", "RSMI_EXPORTTABLE"}));
    EXPECT_EQ(entries(host, {"rsm", "Rsmi_10"}), (QStringList{"ID_SEPARATOR", "RSMI_EXPORTTABLE"}));

    host.unloadExportTable();
    EXPECT_EQ(entries(host, {"rsm", "rsmi_10"}),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_14", "ID_SEPARATOR"}));
    EXPECT_EQ(entries(host, {"rsm", "Rsmi_10"}), QStringList{"ID_SEPARATOR"});
}

// Kept: docs/lifecycle.md, row "Anchor stand-ins".
TEST(ExportTableEntry, WithoutRSMTheLastApplicationMenuEntryStandsIn)
{
    RibbonHost host;
    menuEntry(host.mainGroup(), {"RSM"})->SetIdentifier("RSM_RENAMED");
    CFxUIRibbonSystemMenuItem* last = host.ui().CreateRibbonSystemMenuItem("RSM_LAST");
    last->GetSubItems().Append(host.ui().CreateRibbonSystemMenuItem("RSMI_10"));
    host.mainGroup().GetApplicationMenu().Append(last);
    host.loadExportTable();
    EXPECT_EQ(entries(host, {"RSM_RENAMED", "RSMI_10"}),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "RSMI_14"}));
    EXPECT_EQ(entries(host, {"RSM_LAST", "RSMI_10"}),
              (QStringList{"ID_SEPARATOR", "RSMI_EXPORTTABLE"}));
}

// Kept: docs/lifecycle.md, row "Export-table entry".
TEST(ExportTableEntry, ItsCommandNeverJoinsTheMainGroupsCommandList)
{
    RibbonHost host;
    const QStringList commands = ids(host.mainGroup().GetCommands());
    host.loadExportTable();
    const CFxUIRibbonSystemMenuItem* entry =
        menuEntry(host.mainGroup(), kExports + QStringList{"RSMI_EXPORTTABLE"});
    ASSERT_NE(entry, nullptr);
    ASSERT_NE(entry->GetCommand(), nullptr);
    EXPECT_EQ(ids(host.mainGroup().GetCommands()), commands);
    host.unloadExportTable();
    host.loadExportTable();
    EXPECT_EQ(ids(host.mainGroup().GetCommands()), commands);
}

// An entry that a profile already holds under the entry's identifier in another letter case is
// taken for the export-table entry: loading adds none beside it, and unloading takes it out.
// Kept: docs/lifecycle.md, row "Look-up rules".
TEST(ExportTableEntry, AnEntryInAnotherLetterCaseCountsAsLoadedAndGoesOnUnload)
{
    RibbonHost host;
    const QStringList profile{
        "RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "rsmi_exporttable Export Table",
        "RSMI_14"};
    fillExportMenu(host, profile);
    host.loadExportTable();
    EXPECT_EQ(entriesWithTexts(host), profile);
    host.unloadExportTable();
    EXPECT_EQ(entriesWithTexts(host),
              QStringList({"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}));
}

// Unloading goes through the export menu once: at each export-table entry it takes out the first
// one, and moves on, so the entry that moved into the freed place is not looked at.
struct UnloadCase
{
    const char* name;
    QStringList before;
    QStringList after;
};

void PrintTo(const UnloadCase& each, std::ostream* out)
{
    *out << each.name;
}

class ExportTableUnloading : public ::testing::TestWithParam<UnloadCase>
{};

// Kept: docs/lifecycle.md, row "One pass".
TEST_P(ExportTableUnloading, WalksTheMenuOnceAndPassesOverTheEntryThatMovedUp)
{
    RibbonHost host;
    fillExportMenu(host, GetParam().before);
    host.unloadExportTable();
    EXPECT_EQ(entriesWithTexts(host), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Menus, ExportTableUnloading,
    ::testing::Values(
        UnloadCase{"TwoAdjacent",
                   {"RSMI_13", "RSMI_EXPORTTABLE first", "RSMI_EXPORTTABLE second", "RSMI_14"},
                   {"RSMI_13", "RSMI_EXPORTTABLE second", "RSMI_14"}},
        UnloadCase{"ThreeAdjacent",
                   {"RSMI_EXPORTTABLE first", "RSMI_EXPORTTABLE second", "RSMI_EXPORTTABLE third"},
                   {"RSMI_EXPORTTABLE third"}},
        UnloadCase{"Apart",
                   {"RSMI_EXPORTTABLE first", "RSMI_14", "Rsmi_ExportTable second"},
                   {"RSMI_14"}}));
