// The sample sibling module, built against the installed ExtCommands package alone, loaded
// into quillon-host from its own build folder and driven from the host's command line.
#include "HostModel.h"
#include "HostProcess.h"
#include "TestPrinters.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QJsonObject record(const QString& id, const QString& type = QStringLiteral("command"))
{
    return {{"id", id},
            {"text", id.toLower()},
            {"type", type},
            {"commandName", QStringLiteral("RUN_") + id},
            {"tabId", kAddInsTab},
            {"panelId", "ID_RibbonAddInsPanel"},
            {"rowId", "ID_RibbonAddInsRow"}};
}

void writeFile(const HostProcess& host, const QString& name, const QByteArray& content)
{
    QFile file(host.home() + QLatin1Char('/') + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray json(const QJsonArray& records)
{
    return QJsonDocument(records).toJson(QJsonDocument::Compact);
}

// Runs the script after loading the sample, with the host's own modules and the sample's; the
// sample's folder comes first, before the copy staged beside the host.
HostResult runWithSample(HostProcess& host, const QString& script)
{
    return host.run({"--module-path", EC_SAMPLE_BUILD, "--module-path", HostProcess::stageFolder(),
                     "-c", QStringLiteral("load SampleSibling\n") + script});
}

QStringList exportMenu(const QJsonObject& group)
{
    return ids(
        firstWithId(firstWithId(group["applicationMenu"], "RSM")["items"], "RSMI_10")["items"]);
}
} // namespace

TEST(SampleSibling, BuiltFromTheInstalledPackageDrivesTheRibbonAndTheExportTableEntry)
{
    QFile cache(QStringLiteral(EC_SAMPLE_BUILD "/CMakeCache.txt"));
    ASSERT_TRUE(cache.open(QIODevice::ReadOnly));
    EXPECT_TRUE(cache.readAll().contains("ExtCommands_DIR:PATH=" EC_SAMPLE_PREFIX
                                         "/lib/cmake/ExtCommands\n"));

    HostProcess host;
    QJsonObject vaultline = record("ID_VAULTLINE_ITEM", "split");
    vaultline.insert("children", QJsonArray{record("ID_VL_OPEN"), record("ID_VL_SAVE")});
    writeFile(host, "vaultline.json", json({vaultline}));
    writeFile(host, "others.json", json({record("ID_GCODE_ITEM"), record("ID_DRAWCOMPARE_ITEM")}));
    writeFile(host, "good.json", json({record("ID_SIBLING_GOOD")}));
    writeFile(host, "unknown.json", "[{\"id\": \"X\",\n \"colour\": \"red\"}]");
    writeFile(host, "nul.json", QByteArray("[]\0[", 4) + json({record("ID_AFTER_NUL")}) + "]");
    writeFile(host, "latin1.json", "[{\"text\": \"caf\xe9\"}]");
    const HostResult result =
        runWithSample(host, "SAMPLELOAD; SAMPLELOAD unknown.json; SAMPLELOAD good.json first\n"
                            "SAMPLELOAD nul.json; SAMPLELOAD latin1.json; SAMPLELOAD /dev/zero\n"
                            "SAMPLEVISIBILITY ID_VL_OPEN yes\n"
                            "SAMPLELOAD vaultline.json 7; SAMPLELOAD others.json -3\n"
                            "SAMPLEVISIBILITY ID_VL_OPEN 0; SAMPLEEXPORTTABLE load; ui\n"
                            "SAMPLEVISIBILITY id_vl_open 1; SAMPLEUNLOAD ID_GCODE_ITEM\n"
                            "SAMPLEEXPORTTABLE unload; ui");
    ASSERT_TRUE(ranCleanly(result));
    EXPECT_EQ(result.events.values("command-output", "text"),
              (QStringList{
                  "SAMPLELOAD: no file given",
                  "SAMPLELOAD: unknown.json is not a list of ribbon records: line 2, column 12: "
                  "a record has no field \"colour\"",
                  "SAMPLELOAD: the position must be a whole number",
                  "SAMPLELOAD: cannot read nul.json: it holds a NUL byte (at byte 2), so it is "
                  "not text",
                  "SAMPLELOAD: cannot read latin1.json: it is not UTF-8 text",
                  "SAMPLELOAD: cannot read /dev/zero: it is not a regular file",
                  "SAMPLEVISIBILITY: answer 0 to hide the entry or 1 to show it",
                  "SAMPLELOAD: 1 records loaded",
                  "SAMPLELOAD: 2 records loaded",
              }));
    EXPECT_TRUE(
        result.standardError.contains("id_drawcompare_item\nid_gcode_item\nid_vaultline_item"))
        << "each button looked at is written to the debug log";

    const QVector<QJsonObject> states = models(result);
    ASSERT_EQ(states.size(), 2);
    const QJsonArray buttons = rowButtons(states[0]);
    EXPECT_EQ(ids(buttons),
              (QStringList{"ID_DRAWCOMPARE_ITEM", "ID_GCODE_ITEM", "ID_VAULTLINE_ITEM"}));
    EXPECT_EQ(ids(buttons[2]["buttons"], "text"), (QStringList{"~id_vl_open", "id_vl_save"}));
    EXPECT_EQ(exportMenu(states[0]), (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR",
                                                  "RSMI_EXPORTTABLE", "RSMI_14"}));

    const QJsonArray after = rowButtons(states[1]);
    EXPECT_EQ(ids(after), (QStringList{"ID_DRAWCOMPARE_ITEM", "ID_VAULTLINE_ITEM"}));
    EXPECT_EQ(ids(after[1]["buttons"], "text"), (QStringList{"id_vl_open", "id_vl_save"}));
    EXPECT_EQ(exportMenu(states[1]),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}));
}

// The sample as a sibling should be: its own button comes with the main window, and when it is
// unloaded it takes off everything it loaded, its buttons' entries first (the commands of a
// split button's entries stay unless the entries are unloaded before the button, after which
// its row may be gone), and the export-table entry. What the module keeps by design stays.
TEST(SampleSibling, LoadsItsButtonWithTheWindowAndTakesOffAllItLoadedWhenUnloaded)
{
    HostProcess host;
    QJsonObject more = record("ID_VL_MORE", "split");
    more.insert("children", QJsonArray{record("ID_VL_HISTORY")});
    QJsonObject vaultline = record("ID_VAULTLINE_ITEM", "split");
    vaultline.insert("children",
                     QJsonArray{record("ID_VL_OPEN"), QJsonObject{{"type", "separator"}}, more});
    // Alone in a row of its own, a split button takes its row, panel and tab with it.
    QJsonObject alone = record("ID_SIBLING_ALONE", "split");
    alone.insert("tabId", "ID_SiblingTab");
    alone.insert("panelId", "ID_SiblingPanel");
    alone.insert("rowId", "ID_SiblingRow");
    alone.insert("children", QJsonArray{record("ID_ALONE_ENTRY")});
    writeFile(host, "records.json", json({vaultline, record("ID_VL_SYNC"), alone}));
    const HostResult result =
        runWithSample(host, "SAMPLELIST; mainframe create; SAMPLELIST; SAMPLELOAD records.json\n"
                            "SAMPLELOAD records.json; SAMPLEEXPORTTABLE load; SAMPLELIST; ui\n"
                            "unload SampleSibling; ui; commands");
    ASSERT_TRUE(ranCleanly(result));
    EXPECT_EQ(result.events.values("command-output", "text"),
              (QStringList{"SAMPLELIST: no buttons loaded", "SAMPLELIST: ID_SAMPLE_ITEM",
                           "SAMPLELOAD: 3 records loaded", "SAMPLELOAD: 3 records loaded",
                           "SAMPLELIST: ID_SAMPLE_ITEM, ID_VAULTLINE_ITEM, ID_VL_SYNC, "
                           "ID_SIBLING_ALONE"}));

    const QVector<QJsonObject> states = models(result);
    ASSERT_EQ(states.size(), 2);
    EXPECT_EQ(ids(rowButtons(states[0])),
              (QStringList{"ID_VL_SYNC", "ID_VAULTLINE_ITEM", "ID_SAMPLE_ITEM"}));
    const QStringList entries{"ID_VL_OPEN", "ID_VL_MORE", "ID_VL_HISTORY", "ID_ALONE_ENTRY"};
    const QStringList loaded =
        QStringList{"ID_SAMPLE_ITEM", "ID_VAULTLINE_ITEM", "ID_VL_SYNC", "ID_SIBLING_ALONE"} +
        entries;
    const QStringList before = ids(states[0]["commands"]);
    for (const QString& id : loaded)
        EXPECT_TRUE(before.contains(id)) << qPrintable(id);

    const QJsonObject after = states[1];
    EXPECT_TRUE(firstWithId(after["tabs"], kAddInsTab).isEmpty()) << "its last button went";
    EXPECT_TRUE(firstWithId(after["tabs"], "ID_SiblingTab").isEmpty());
    const QStringList left = ids(after["commands"]);
    for (const QString& id : loaded)
        EXPECT_FALSE(left.contains(id)) << qPrintable(id) << " stayed behind";
    EXPECT_TRUE(left.contains("")) << "the separators' command, of no identifier, stays";
    EXPECT_EQ(exportMenu(after),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}))
        << "the entry goes, its separator stays";
    const QStringList commands =
        result.events.named("commands").last().fields["names"].toVariant().toStringList();
    EXPECT_FALSE(commands.filter(QRegularExpression("^SAMPLE")).size() > 0)
        << qPrintable(commands.join(' '));
}

// A button forgotten when unloaded in another letter case is no anchor; an ordered button of
// another row is no anchor in the Add-Ins row, and unloading it deletes its command only.
TEST(SampleSibling, HostSurvivesOrderedButtonsUnloadedInAnotherCaseOrLoadedIntoAnotherRow)
{
    HostProcess host;
    QJsonObject elsewhere = record("ID_DRAWCOMPARE_ITEM");
    elsewhere.insert("tabId", "ID_RibbonHomeTab");
    elsewhere.insert("panelId", "ID_RibbonDrawPanel");
    elsewhere.insert("rowId", "ID_RibbonDrawRow");
    writeFile(host, "elsewhere.json", json({elsewhere}));
    writeFile(host, "addins.json", json({record("ID_SIBLING_OTHER"), record("ID_GCODE_ITEM")}));
    writeFile(host, "vaultline.json", json({record("ID_VAULTLINE_ITEM")}));
    const HostResult result =
        runWithSample(host, "SAMPLELOAD elsewhere.json; SAMPLELOAD addins.json\n"
                            "SAMPLEUNLOAD ID_DRAWCOMPARE_ITEM; SAMPLELOAD addins.json; ui\n"
                            "SAMPLEUNLOAD id_gcode_item; SAMPLELOAD vaultline.json; ui");
    ASSERT_TRUE(ranCleanly(result));
    const QVector<QJsonObject> states = models(result);
    ASSERT_EQ(states.size(), 2);
    EXPECT_EQ(ids(rowButtons(states[0])), (QStringList{"ID_SIBLING_OTHER", "ID_GCODE_ITEM"}));
    EXPECT_EQ(
        ids(rowButtons(states[0], "ID_RibbonHomeTab", "ID_RibbonDrawPanel", "ID_RibbonDrawRow"))
            .first(),
        "ID_DRAWCOMPARE_ITEM");
    EXPECT_EQ(ids(rowButtons(states[1])), (QStringList{"ID_VAULTLINE_ITEM", "ID_SIBLING_OTHER"}));
}

TEST(SampleSibling, HostSurvivesEmptyRecordsThousandsOfButtonsAndRecordsThousandsDeep)
{
    constexpr int count = 2000;
    constexpr int depth = 20000;
    HostProcess host;
    QJsonObject empty;
    for (const char* key : {"text", "id", "rowId", "tabText", "tabId", "panelText", "panelId",
                            "commandName", "description", "largeIcon", "smallIcon", "type"})
        empty.insert(QLatin1String(key), "");
    QJsonObject emptyCommand = empty;
    emptyCommand.insert("type", "command");
    emptyCommand.insert("children", QJsonArray{empty, QJsonObject()});
    writeFile(host, "empty.json", json({QJsonObject(), empty, emptyCommand, emptyCommand}));
    QJsonArray many;
    for (int i = 0; i < count; ++i)
        many.append(record(QStringLiteral("ID_MANY_%1").arg(i)));
    writeFile(host, "many.json", json(many));
    // Written by hand: deeper than Qt's own JSON writer goes.
    QByteArray deep = "[{\"id\":\"ID_SIBLING_DEEP\",\"type\":\"split\",\"tabId\":\"" +
                      kAddInsTab.toLatin1() +
                      "\",\"panelId\":\"ID_RibbonAddInsPanel\",\"rowId\":\"ID_RibbonAddInsRow\","
                      "\"children\":[";
    for (int i = 0; i < depth; ++i)
        deep +=
            "{\"id\":\"ID_DEEP_" + QByteArray::number(i) + "\",\"type\":\"split\",\"children\":[";
    writeFile(host, "deep.json", deep + QByteArray("]}").repeated(depth) + "]}]");

    const HostResult result = runWithSample(
        host, "SAMPLELOAD empty.json\n"
              "SAMPLELOAD many.json; SAMPLEVISIBILITY ID_MANY_0 0; SAMPLEUNLOAD ID_MANY_7\n"
              "SAMPLELOAD deep.json; ui; SAMPLEUNLOAD ID_SIBLING_DEEP; ui");
    ASSERT_TRUE(ranCleanly(result));
    EXPECT_EQ(result.events.values("command-output", "text"),
              (QStringList{"SAMPLELOAD: 4 records loaded", "SAMPLELOAD: 2000 records loaded",
                           "SAMPLELOAD: 1 records loaded"}));
    ASSERT_EQ(models(result).size(), 1);
    const QJsonObject group = models(result)[0];
    EXPECT_EQ(ids(rowButtons(group, "", "", "")), QStringList{""});
    const QStringList buttons = ids(rowButtons(group));
    ASSERT_EQ(buttons.size(), count - 1);
    EXPECT_EQ(buttons.first(), QStringLiteral("ID_MANY_%1").arg(count - 1));
    EXPECT_FALSE(buttons.contains("ID_MANY_7"));
    const QStringList commands = ids(group["commands"]);
    EXPECT_TRUE(commands.contains(QStringLiteral("ID_DEEP_%1").arg(depth - 1)))
        << "every level had its command made";
    EXPECT_FALSE(commands.contains("ID_SIBLING_DEEP")) << "unloading deleted the top one";

    // The model with every level in it, deeper than Qt reads JSON: checked as text.
    const QStringList uiLines = result.output.filter(QRegularExpression("^\\{\"event\":\"ui\","));
    ASSERT_EQ(uiLines.size(), 2);
    const QString& deepest = uiLines[0];
    EXPECT_GT(deepest.count("{\"buttons\":["), depth);
    EXPECT_TRUE(deepest.contains(QStringLiteral("\"id\":\"ID_DEEP_%1\"").arg(depth - 1)));
    EXPECT_TRUE(deepest.endsWith("]}}")) << qPrintable(deepest.right(80));
}
