// The "Publish Viewcast" entry of the ribbon's application menu, as the host's ui event shows
// it: put after "RSMI_10" with its separator when the main window is created, and taken out
// with the separator when the window goes, as often as that happens.
#include "HostProcess.h"
#include "TestPrinters.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {
const QString kEntry = QStringLiteral("RSMI_PUBVIEWCAST");
const QString kSeparator = QStringLiteral("ID_SEPARATOR");

// The top entry of the main group's application menu in one ui event.
QJsonObject applicationMenuOf(const RecordedEvent& ui)
{
    for (const QJsonValue group : ui.fields["model"]["groups"].toArray()) {
        if (group["main"].toBool())
            return group["applicationMenu"][0].toObject();
    }
    return {};
}

QStringList entryIds(const QJsonObject& menu)
{
    QStringList ids;
    for (const QJsonValue entry : menu["items"].toArray())
        ids << entry["id"].toString();
    return ids;
}

QJsonObject entryOf(const QJsonObject& menu, const QString& id)
{
    for (const QJsonValue entry : menu["items"].toArray()) {
        if (entry["id"] == id)
            return entry.toObject();
    }
    return {};
}

// Kept: docs/lifecycle.md, rows "Publish entry" and "Resource names".
TEST(PublishEntry, StandsAfterRsmi10WithItsSeparatorWhileTheMainWindowExists)
{
    HostProcess host;
    const HostResult result = host.runScript(
        "ui; mainframe create; ui; mainframe destroy; mainframe create; ui; mainframe destroy; ui");
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const auto uis = result.events.named("ui");
    ASSERT_EQ(uis.size(), 4);
    const QStringList before = entryIds(applicationMenuOf(uis[0]));
    ASSERT_TRUE(before.contains("RSMI_10") && !before.contains(kSeparator));
    QStringList with = before;
    with.insert(before.indexOf("RSMI_10") + 1, kSeparator);
    with.insert(before.indexOf("RSMI_10") + 2, kEntry);

    const QJsonObject menu = applicationMenuOf(uis[1]);
    EXPECT_EQ(entryIds(menu), with);
    EXPECT_TRUE(entryOf(menu, kSeparator)["separator"].toBool());
    const QJsonObject entry = entryOf(menu, kEntry);
    EXPECT_EQ(entry["text"], "Publish Viewcast");
    const QJsonValue command = entry["command"];
    EXPECT_EQ(command["id"], "ID_PUBVIEWCAST");
    EXPECT_EQ(command["macro"], "_VIEWCAST");
    EXPECT_EQ(command["description"], "Opens the drawings in Viewcast");
    EXPECT_EQ(command["largeIcon"][0], ":/images/BFResources/Resources/vcst_publish_24.png");
    // The doubled extension is part of the resource's name.
    EXPECT_EQ(command["smallIcon"][0], ":/images/BFResources/Resources/vcst_Publish_16.png.png");

    EXPECT_EQ(entryIds(applicationMenuOf(uis[2])), with)
        << "a window made again has one entry and one separator";
    EXPECT_EQ(entryIds(applicationMenuOf(uis[3])), before);
}

// Without the anchor "RSMI_10" the entry follows the last entry, and without entries it is placed
// nowhere; the destroy path takes out the menu's first separator and the entry.
struct ApplicationMenuCase
{
    const char* name;
    QStringList entries, expected, after; // empty `after`: the entries as they were
};

// How failures and CTest name the case.
void PrintTo(const ApplicationMenuCase& each, std::ostream* out)
{
    *out << each.name;
}

class PublishEntryPlace : public ::testing::TestWithParam<ApplicationMenuCase>
{};

// Kept: docs/lifecycle.md, rows "Publish entry" and "Anchor stand-ins".
TEST_P(PublishEntryPlace, InAnApplicationMenuOfTheProfile)
{
    const ApplicationMenuCase& each = GetParam();
    HostProcess host;
    const QString profile = host.home() + "/profile.json";
    // A profile of one main group whose application menu holds the entries.
    QJsonArray items;
    for (const QString& id : each.entries)
        items.append(QJsonObject{{"id", id}});
    const QJsonObject group{
        {"id", "MAIN"},
        {"main", true},
        {"applicationMenu", QJsonArray{QJsonObject{{"id", "RSM"}, {"items", items}}}}};
    QFile file(profile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(QJsonDocument(QJsonObject{{"groups", QJsonArray{group}}}).toJson());
    file.close();
    const HostResult result =
        host.runScript("mainframe create; ui; mainframe destroy; ui", {"--ui-profile", profile});
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const auto uis = result.events.named("ui");
    ASSERT_EQ(uis.size(), 2);
    EXPECT_EQ(entryIds(applicationMenuOf(uis[0])), each.expected);
    EXPECT_EQ(entryIds(applicationMenuOf(uis[1])),
              each.after.isEmpty() ? each.entries : each.after);
}

INSTANTIATE_TEST_SUITE_P(
    Menus, PublishEntryPlace,
    ::testing::Values(
        ApplicationMenuCase{"AnchorOnlyInLowerCase",
                            {"RSMI_1", "rsmi_10", "RSMI_20"},
                            {"RSMI_1", "rsmi_10", kSeparator, kEntry, "RSMI_20"},
                            {}},
        ApplicationMenuCase{
            "NoAnchor", {"RSMI_1", "RSMI_2"}, {"RSMI_1", "RSMI_2", kSeparator, kEntry}, {}},
        ApplicationMenuCase{"NoEntries", {}, {}, {}},
        // Taken out is the first separator of the menu, even one that is not the module's own.
        ApplicationMenuCase{"ASeparatorBeforeTheAnchor",
                            {"RSMI_1", kSeparator, "RSMI_10", "RSMI_20"},
                            {"RSMI_1", kSeparator, "RSMI_10", kSeparator, kEntry, "RSMI_20"},
                            {"RSMI_1", "RSMI_10", kSeparator, "RSMI_20"}}));
} // namespace
