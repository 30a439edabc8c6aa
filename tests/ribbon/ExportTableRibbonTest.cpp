// The "Export Table" entry of the application menu, put in and taken out through the module's
// exported functions.
#include "RibbonHost.h"
#include "RibbonModel.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <CFxUI.h>

#include <functional>

namespace {
const QStringList kExportMenu{"RSM", "RSMI_10"};

QStringList exportMenuIds(const RibbonHost& host, const QStringList& path = kExportMenu)
{
    const CFxUIRibbonSystemMenuItem* menu = RibbonModel::menuEntry(host.mainGroup(), path);
    return menu ? RibbonModel::ids(menu->GetSubItems()) : QStringList{"<no menu>"};
}

// The default profile with `change` applied to the main group's application menu.
QJsonObject profileWithMenu(const std::function<void(QJsonArray&)>& change)
{
    QJsonObject profile = RibbonHost::defaultProfile();
    QJsonArray groups = profile.value("groups").toArray();
    for (int i = 0; i < groups.size(); ++i) {
        QJsonObject group = groups[i].toObject();
        if (!group.value("main").toBool())
            continue;
        QJsonArray menu = group.value("applicationMenu").toArray();
        change(menu);
        group.insert("applicationMenu", menu);
        groups[i] = group;
    }
    profile.insert("groups", groups);
    return profile;
}

// Applies `change` to the sub-entries of the entry at `index` of `entries`.
void changeItems(QJsonArray& entries, int index, const std::function<void(QJsonArray&)>& change)
{
    QJsonObject entry = entries[index].toObject();
    QJsonArray items = entry.value("items").toArray();
    change(items);
    entry.insert("items", items);
    entries[index] = entry;
}

int indexOf(const QJsonArray& entries, const QString& id)
{
    for (int i = 0; i < entries.size(); ++i) {
        if (entries[i].toObject().value("id").toString() == id)
            return i;
    }
    return -1;
}

void renameEntry(QJsonArray& entries, const QString& id, const QString& newId)
{
    QJsonObject entry = entries[indexOf(entries, id)].toObject();
    entry.insert("id", newId);
    entries[indexOf(entries, id)] = entry;
}

const QStringList kLoaded{"RSMI_11",      "RSMI_12",          "RSMI_13",
                          "ID_SEPARATOR", "RSMI_EXPORTTABLE", "RSMI_14"};
} // namespace

TEST(ExportTableEntry, GoesAfterRSMI13OnceHoweverOftenItIsLoaded)
{
    RibbonHost host;
    const int commands = host.mainGroup().GetCommands().GetCount();
    host.loadExportTable();
    host.loadExportTable();
    EXPECT_EQ(exportMenuIds(host), kLoaded);

    const CFxUIRibbonSystemMenuItem* entry =
        RibbonModel::menuEntry(host.mainGroup(), kExportMenu + QStringList{"RSMI_EXPORTTABLE"});
    EXPECT_EQ(entry->GetText().toQString(), "Export Table");
    const CFxUICommand* command = entry->GetCommand();
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->GetIdentifier().toQString(), "ID_EXPORTTABLE");
    EXPECT_EQ(command->GetMacro().toQString(), "_EXPORTTABLE");
    EXPECT_EQ(command->GetDescription().toQString(),
              "Export table entity to .xlsx, .xls, .csv file");
    EXPECT_EQ(command->GetLargeIcon(0).toQString() + command->GetLargeIcon(1).toQString(),
              ":/images/BFResources/Resources/PK_BOM_EXPORT_large.png");
    EXPECT_EQ(command->GetSmallIcon(0).toQString() + command->GetSmallIcon(1).toQString(),
              ":/images/BFResources/Resources/PK_BOM_EXPORT_small.png");
    EXPECT_EQ(host.mainGroup().GetCommands().GetCount(), commands)
        << "the command stands in no group";
}

TEST(ExportTableEntry, UnloadingTakesOnlyTheEntryOut)
{
    RibbonHost host;
    host.unloadExportTable();
    EXPECT_EQ(exportMenuIds(host), (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "RSMI_14"}));

    host.loadExportTable();
    const CFxUICommand* command =
        RibbonModel::menuEntry(host.mainGroup(), kExportMenu + QStringList{"RSMI_EXPORTTABLE"})
            ->GetCommand();
    host.unloadExportTable();
    EXPECT_EQ(exportMenuIds(host),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}));
    EXPECT_EQ(command->GetMacro().toQString(), "_EXPORTTABLE") << "the command is not deleted";

    host.loadExportTable();
    EXPECT_EQ(exportMenuIds(host), (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR",
                                                "RSMI_EXPORTTABLE", "ID_SEPARATOR", "RSMI_14"}));
}

TEST(ExportTableEntry, WithoutRSMI13GoesAfterTheLastSubEntry)
{
    RibbonHost host(profileWithMenu([](QJsonArray& menu) {
        changeItems(menu, indexOf(menu, "RSM"), [](QJsonArray& top) {
            changeItems(top, indexOf(top, "RSMI_10"),
                        [](QJsonArray& exports) { exports.removeAt(indexOf(exports, "RSMI_13")); });
        });
    }));
    host.loadExportTable();
    EXPECT_EQ(exportMenuIds(host),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_14", "ID_SEPARATOR", "RSMI_EXPORTTABLE"}));
}

TEST(ExportTableEntry, FindsTheHostEntriesInAnyLetterCaseAndInEveryRSMI10)
{
    RibbonHost host(profileWithMenu([](QJsonArray& menu) {
        changeItems(menu, indexOf(menu, "RSM"), [](QJsonArray& top) {
            renameEntry(top, "RSMI_10", "rsmi_10");
            top.append(QJsonObject{{"id", "Rsmi_10"}, {"text", "Second export menu"}});
        });
        renameEntry(menu, "RSM", "rsm");
    }));
    host.loadExportTable();
    EXPECT_EQ(exportMenuIds(host, {"rsm", "rsmi_10"}), kLoaded);
    EXPECT_EQ(exportMenuIds(host, {"rsm", "Rsmi_10"}),
              (QStringList{"ID_SEPARATOR", "RSMI_EXPORTTABLE"}))
        << "without sub-entries, the separator goes first";

    host.unloadExportTable();
    EXPECT_EQ(exportMenuIds(host, {"rsm", "rsmi_10"}),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}));
    EXPECT_EQ(exportMenuIds(host, {"rsm", "Rsmi_10"}), QStringList{"ID_SEPARATOR"});
}

TEST(ExportTableEntry, WithoutRSMTheLastApplicationMenuEntryStandsIn)
{
    RibbonHost host(profileWithMenu([](QJsonArray& menu) {
        renameEntry(menu, "RSM", "RSM_RENAMED");
        menu.append(
            QJsonObject{{"id", "RSM_LAST"},
                        {"items", QJsonArray{QJsonObject{{"id", "RSMI_10"}, {"text", "Export"}}}}});
    }));
    host.loadExportTable();
    EXPECT_EQ(exportMenuIds(host, {"RSM_RENAMED", "RSMI_10"}),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "RSMI_14"}));
    EXPECT_EQ(exportMenuIds(host, {"RSM_LAST", "RSMI_10"}),
              (QStringList{"ID_SEPARATOR", "RSMI_EXPORTTABLE"}));
}
