// The sample sibling module, built against the installed ExtCommands package alone, loaded
// into quillon-host from its own build folder and driven from the host's command line.
#include "HostProcess.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {
const QString kAddInsTab = QStringLiteral("ID_RibbonAddInsTab");

QJsonObject record(const QString& id, const QString& type = QStringLiteral("command"))
{
    return {{"id", id},
            {"text", id.toLower()},
            {"type", type},
            {"commandName", QStringLiteral("RUN_") + id},
            {"tabId", kAddInsTab},
            {"tabText", "Add-Ins"},
            {"panelId", "ID_RibbonAddInsPanel"},
            {"panelText", "Add-Ins"},
            {"rowId", "ID_RibbonAddInsRow"}};
}

QString writeFile(const HostProcess& host, const QString& name, const QByteArray& content)
{
    const QString path = host.home() + QLatin1Char('/') + name;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return path;
}

QString writeRecords(const HostProcess& host, const QString& name, const QJsonArray& records)
{
    return writeFile(host, name, QJsonDocument(records).toJson(QJsonDocument::Compact));
}

// Runs the script after loading the sample, with the host's own modules and the sample's.
HostResult runWithSample(HostProcess& host, const QString& script)
{
    return host.run({QStringLiteral("--module-path"), HostProcess::stageFolder(),
                     QStringLiteral("--module-path"), QStringLiteral(EC_SAMPLE_BUILD),
                     QStringLiteral("-c"), QStringLiteral("load SampleSibling\n") + script});
}

// Whether the host ran the whole script and ended well, with no complaint of a sanitizer.
testing::AssertionResult ranCleanly(const HostResult& result)
{
    for (const char* alarm : {"AddressSanitizer", "LeakSanitizer", "runtime error:"}) {
        if (result.standardError.contains(QLatin1String(alarm)))
            return testing::AssertionFailure() << result.standardError.toStdString();
    }
    if (result.exitCode != 0 || result.events.count(QStringLiteral("error")) != 0)
        return testing::AssertionFailure()
               << "exit code " << result.exitCode << ": "
               << result.events.values("error", "message").join(", ").toStdString();
    return testing::AssertionSuccess();
}

QJsonObject mainGroup(const QJsonObject& model)
{
    for (const QJsonValue group : model.value("groups").toArray()) {
        if (group.toObject().value("main").toBool())
            return group.toObject();
    }
    return {};
}

// The models written by the script's "ui" statements, in order.
QVector<QJsonObject> models(const HostResult& result)
{
    QVector<QJsonObject> found;
    for (const RecordedEvent& event : result.events.named("ui"))
        found << mainGroup(event.fields.value("model").toObject());
    return found;
}

QJsonObject firstWithId(const QJsonArray& list, const QString& id)
{
    for (const QJsonValue item : list) {
        if (item.toObject().value("id").toString() == id)
            return item.toObject();
    }
    return {};
}

QStringList ids(const QJsonArray& list, const QString& field = QStringLiteral("id"))
{
    QStringList result;
    for (const QJsonValue item : list)
        result << item.toObject().value(field).toString();
    return result;
}

QJsonArray rowButtons(const QJsonObject& group, const QString& tab, const QString& panel,
                      const QString& row)
{
    const QJsonObject found = firstWithId(
        firstWithId(firstWithId(group.value("tabs").toArray(), tab).value("panels").toArray(),
                    panel)
            .value("rows")
            .toArray(),
        row);
    return found.value("buttons").toArray();
}

QJsonArray addInsButtons(const QJsonObject& group)
{
    return rowButtons(group, kAddInsTab, "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow");
}

QStringList exportMenu(const QJsonObject& group)
{
    const QJsonObject top = firstWithId(group.value("applicationMenu").toArray(), "RSM");
    return ids(firstWithId(top.value("items").toArray(), "RSMI_10").value("items").toArray());
}

// A chain of `depth` split records below a top-level one, as JSON text written by hand:
// deeper than Qt's own JSON writer goes.
QByteArray deepRecords(int depth)
{
    QByteArray text = "[{\"id\":\"ID_SIBLING_DEEP\",\"type\":\"split\",\"tabId\":\"" +
                      kAddInsTab.toLatin1() +
                      "\",\"panelId\":\"ID_RibbonAddInsPanel\",\"rowId\":\"ID_RibbonAddInsRow\","
                      "\"children\":[";
    for (int i = 0; i < depth; ++i)
        text +=
            "{\"id\":\"ID_DEEP_" + QByteArray::number(i) + "\",\"type\":\"split\",\"children\":[";
    text += QByteArray("]}").repeated(depth) + "]}]";
    return text;
}
} // namespace

TEST(SampleSibling, IsBuiltFromTheInstalledPackageAndLoadsFromItsOwnFolder)
{
    QFile cache(QStringLiteral(EC_SAMPLE_BUILD "/CMakeCache.txt"));
    ASSERT_TRUE(cache.open(QIODevice::ReadOnly));
    EXPECT_TRUE(cache.readAll().contains("ExtCommands_DIR:PATH=" EC_SAMPLE_PREFIX
                                         "/lib/cmake/ExtCommands\n"));

    HostProcess host;
    const HostResult result = runWithSample(host, "commands\nunload SampleSibling\ncommands");
    ASSERT_TRUE(ranCleanly(result));
    const QStringList commands = {"SAMPLELOAD", "SAMPLEUNLOAD", "SAMPLEVISIBILITY",
                                  "SAMPLEEXPORTTABLE"};
    const QVector<RecordedEvent> lists = result.events.named("commands");
    ASSERT_EQ(lists.size(), 2);
    for (const QString& command : commands) {
        EXPECT_TRUE(lists[0].fields.value("names").toArray().contains(command));
        EXPECT_FALSE(lists[1].fields.value("names").toArray().contains(command));
    }
    EXPECT_TRUE(result.events.values("module-loaded", "module").contains("SampleSibling"));
    EXPECT_TRUE(result.events.values("module-unloaded", "module").contains("SampleSibling"));
}

TEST(SampleSibling, DrivesTheRibbonAndTheExportTableEntry)
{
    HostProcess host;
    QJsonObject vaultline = record("ID_VAULTLINE_ITEM", "split");
    vaultline.insert("text", QStringLiteral("Vault \u00e9"));
    vaultline.insert("children", QJsonArray{record("ID_VL_OPEN"), record("ID_VL_SAVE")});
    writeRecords(host, "vaultline.json", {vaultline});
    writeRecords(host, "others.json", {record("ID_GCODE_ITEM"), record("ID_DRAWCOMPARE_ITEM")});

    const HostResult result = runWithSample(host, "SAMPLELOAD vaultline.json 7\n"
                                                  "SAMPLELOAD others.json -3\n"
                                                  "SAMPLEVISIBILITY ID_VL_OPEN 0\n"
                                                  "SAMPLEEXPORTTABLE load\n"
                                                  "ui\n"
                                                  "SAMPLEVISIBILITY id_vl_open 1\n"
                                                  "SAMPLEUNLOAD ID_GCODE_ITEM\n"
                                                  "SAMPLEEXPORTTABLE unload\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    EXPECT_EQ(result.events.values("command-output", "text"),
              (QStringList{"SAMPLELOAD: 1 records loaded", "SAMPLELOAD: 2 records loaded"}));
    for (const RecordedEvent& ended : result.events.named("command-ended"))
        EXPECT_EQ(ended.fields.value("result").toInt(), 5100);
    EXPECT_TRUE(result.standardError.contains("id_drawcompare_item\nid_gcode_item\nVault"))
        << "each button looked at is written to the debug log";

    const QVector<QJsonObject> states = models(result);
    ASSERT_EQ(states.size(), 2);
    const QJsonArray buttons = addInsButtons(states[0]);
    EXPECT_EQ(ids(buttons),
              (QStringList{"ID_DRAWCOMPARE_ITEM", "ID_GCODE_ITEM", "ID_VAULTLINE_ITEM"}));
    EXPECT_EQ(buttons.at(2).toObject().value("text").toString(), QStringLiteral("Vault \u00e9"));
    EXPECT_EQ(ids(buttons.at(2).toObject().value("buttons").toArray(), "text"),
              (QStringList{"~id_vl_open", "id_vl_save"}));
    EXPECT_EQ(exportMenu(states[0]), (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR",
                                                  "RSMI_EXPORTTABLE", "RSMI_14"}));

    const QJsonArray after = addInsButtons(states[1]);
    EXPECT_EQ(ids(after), (QStringList{"ID_DRAWCOMPARE_ITEM", "ID_VAULTLINE_ITEM"}));
    EXPECT_EQ(ids(after.at(1).toObject().value("buttons").toArray(), "text"),
              (QStringList{"id_vl_open", "id_vl_save"}));
    EXPECT_EQ(exportMenu(states[1]),
              (QStringList{"RSMI_11", "RSMI_12", "RSMI_13", "ID_SEPARATOR", "RSMI_14"}));
}

TEST(SampleSibling, TellsTheUserOfABadFileOrABadAnswer)
{
    HostProcess host;
    writeRecords(host, "good.json", {record("ID_SIBLING_GOOD")});
    writeFile(host, "unknown.json", "[{\"id\": \"X\",\n \"colour\": \"red\"}]");
    writeFile(host, "object.json", "{\"id\": \"X\"}");
    writeFile(host, "number.json", "[{\"id\": 7}]");
    writeFile(host, "open.json", "[{\"id\": \"X\"}");
    const HostResult result = runWithSample(host, "SAMPLELOAD\n"
                                                  "SAMPLELOAD missing.json\n"
                                                  "SAMPLELOAD unknown.json\n"
                                                  "SAMPLELOAD object.json\n"
                                                  "SAMPLELOAD number.json\n"
                                                  "SAMPLELOAD open.json\n"
                                                  "SAMPLELOAD good.json first\n"
                                                  "SAMPLEUNLOAD\n"
                                                  "SAMPLEVISIBILITY\n"
                                                  "SAMPLEVISIBILITY ID_SIBLING_GOOD 2\n"
                                                  "SAMPLEVISIBILITY ID_SIBLING_GOOD yes\n"
                                                  "SAMPLEEXPORTTABLE remove\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    const QString home = host.home();
    EXPECT_EQ(result.events.values("command-output", "text"),
              (QStringList{
                  "SAMPLELOAD: no file given",
                  "SAMPLELOAD: cannot read missing.json: No such file or directory",
                  "SAMPLELOAD: unknown.json is not a list of ribbon records: line 2, column 12: "
                  "a record has no field \"colour\"",
                  "SAMPLELOAD: object.json is not a list of ribbon records: line 1, column 1: "
                  "expected '['",
                  "SAMPLELOAD: number.json is not a list of ribbon records: line 1, column 9: "
                  "expected '\"'",
                  "SAMPLELOAD: open.json is not a list of ribbon records: line 1, column 13: "
                  "expected ','",
                  "SAMPLELOAD: the position must be a whole number",
                  "SAMPLEUNLOAD: no identifier given",
                  "SAMPLEVISIBILITY: no identifier given",
                  "SAMPLEVISIBILITY: answer 0 to hide the entry or 1 to show it",
                  "SAMPLEVISIBILITY: answer 0 to hide the entry or 1 to show it",
                  "SAMPLEEXPORTTABLE: answer load or unload",
              }));
    const QVector<QJsonObject> states = models(result);
    ASSERT_EQ(states.size(), 1);
    EXPECT_TRUE(firstWithId(states[0].value("tabs").toArray(), kAddInsTab).isEmpty())
        << "nothing was loaded";
}

TEST(SampleSibling, HostSurvivesUnloadingInAnotherCaseThenLoadingAnOrderedButton)
{
    HostProcess host;
    writeRecords(host, "gcode.json", {record("ID_SIBLING_OTHER"), record("ID_GCODE_ITEM")});
    writeRecords(host, "vaultline.json", {record("ID_VAULTLINE_ITEM")});
    const HostResult result = runWithSample(host, "SAMPLELOAD gcode.json\n"
                                                  "SAMPLEUNLOAD id_gcode_item\n"
                                                  "SAMPLELOAD vaultline.json\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    ASSERT_EQ(models(result).size(), 1);
    EXPECT_EQ(ids(addInsButtons(models(result)[0])),
              (QStringList{"ID_VAULTLINE_ITEM", "ID_SIBLING_OTHER"}));
}

TEST(SampleSibling, HostSurvivesAnOrderedButtonInAnotherTabThenOneInTheAddInsRow)
{
    HostProcess host;
    QJsonObject elsewhere = record("ID_DRAWCOMPARE_ITEM");
    elsewhere.insert("tabId", "ID_RibbonHomeTab");
    elsewhere.insert("panelId", "ID_RibbonDrawPanel");
    elsewhere.insert("rowId", "ID_RibbonDrawRow");
    writeRecords(host, "elsewhere.json", {elsewhere});
    writeRecords(host, "addins.json", {record("ID_SIBLING_OTHER"), record("ID_GCODE_ITEM")});
    const HostResult result = runWithSample(host, "SAMPLELOAD elsewhere.json\n"
                                                  "SAMPLELOAD addins.json\n"
                                                  "SAMPLEUNLOAD ID_DRAWCOMPARE_ITEM\n"
                                                  "SAMPLELOAD addins.json\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    ASSERT_EQ(models(result).size(), 1);
    const QJsonObject group = models(result)[0];
    EXPECT_EQ(ids(addInsButtons(group)), (QStringList{"ID_SIBLING_OTHER", "ID_GCODE_ITEM"}));
    EXPECT_EQ(ids(rowButtons(group, "ID_RibbonHomeTab", "ID_RibbonDrawPanel", "ID_RibbonDrawRow"))
                  .first(),
              "ID_DRAWCOMPARE_ITEM")
        << "unloading works on the Add-Ins row only";
}

TEST(SampleSibling, HostSurvivesARecordOfEmptyTexts)
{
    HostProcess host;
    QJsonObject empty;
    for (const char* key : {"text", "id", "rowId", "tabText", "tabId", "panelText", "panelId",
                            "commandName", "description", "largeIcon", "smallIcon", "type"})
        empty.insert(QLatin1String(key), "");
    QJsonObject emptyCommand = empty;
    emptyCommand.insert("type", "command");
    emptyCommand.insert("children", QJsonArray{empty, QJsonObject()});
    writeRecords(host, "empty.json", {QJsonObject(), empty, emptyCommand, emptyCommand});
    const HostResult result = runWithSample(host, "SAMPLELOAD empty.json\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    ASSERT_EQ(models(result).size(), 1);
    EXPECT_EQ(ids(rowButtons(models(result)[0], "", "", "")), QStringList{""});
}

TEST(SampleSibling, HostSurvivesThousandsOfButtonsInOneRow)
{
    constexpr int count = 2000;
    HostProcess host;
    QJsonArray records;
    for (int i = 0; i < count; ++i)
        records.append(record(QStringLiteral("ID_MANY_%1").arg(i)));
    writeRecords(host, "many.json", records);
    const HostResult result = runWithSample(host, "SAMPLELOAD many.json\n"
                                                  "SAMPLEVISIBILITY ID_MANY_0 0\n"
                                                  "SAMPLEUNLOAD ID_MANY_7\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    ASSERT_EQ(models(result).size(), 1);
    const QStringList buttons = ids(addInsButtons(models(result)[0]));
    ASSERT_EQ(buttons.size(), count - 1);
    EXPECT_EQ(buttons.first(), QStringLiteral("ID_MANY_%1").arg(count - 1));
    EXPECT_FALSE(buttons.contains("ID_MANY_7"));
}

TEST(SampleSibling, HostSurvivesARecordNestedThousandsDeep)
{
    constexpr int depth = 5000;
    HostProcess host;
    writeFile(host, "deep.json", deepRecords(depth));
    const HostResult result = runWithSample(host, "SAMPLELOAD deep.json\n"
                                                  "SAMPLEUNLOAD ID_SIBLING_DEEP\n"
                                                  "ui");
    ASSERT_TRUE(ranCleanly(result));
    EXPECT_EQ(result.events.values("command-output", "text"),
              QStringList{"SAMPLELOAD: 1 records loaded"});
    ASSERT_EQ(models(result).size(), 1);
    const QStringList commands = ids(models(result)[0].value("commands").toArray());
    EXPECT_TRUE(commands.contains(QStringLiteral("ID_DEEP_%1").arg(depth - 1)))
        << "every level had its command made";
    EXPECT_FALSE(commands.contains("ID_SIBLING_DEEP")) << "unloading deleted the top one";
    EXPECT_TRUE(firstWithId(models(result)[0].value("tabs").toArray(), kAddInsTab).isEmpty());
}
