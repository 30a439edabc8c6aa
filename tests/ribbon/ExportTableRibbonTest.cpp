// The "Export Table" entry of the application menu, put in and taken out through the module's
// exported functions.
#include "RibbonHost.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

namespace {
const QStringList kExports{"RSM", "RSMI_10"};

QStringList entries(const RibbonHost& host, const QStringList& path = kExports)
{
    const CFxUIRibbonSystemMenuItem* menu = menuEntry(host.mainGroup(), path);
    return menu ? ids(menu->GetSubItems()) : QStringList{"<no menu>"};
}
} // namespace

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
