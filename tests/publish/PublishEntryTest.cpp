// The "Publish Viewcast" entry of the ribbon's application menu, as the host's ui event shows
// it: put after "RSMI_10" with its separator when the main window is created, and taken out
// with the separator when the window goes, as often as that happens.
#include "HostProcess.h"

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
    for (const QJsonValue group : ui.fields.value(QStringLiteral("model"))
                                      .toObject()
                                      .value(QStringLiteral("groups"))
                                      .toArray()) {
        if (group.toObject().value(QStringLiteral("main")).toBool())
            return group.toObject()
                .value(QStringLiteral("applicationMenu"))
                .toArray()
                .first()
                .toObject();
    }
    return {};
}

QStringList entryIds(const QJsonObject& menu)
{
    QStringList ids;
    for (const QJsonValue entry : menu.value(QStringLiteral("items")).toArray())
        ids << entry.toObject().value(QStringLiteral("id")).toString();
    return ids;
}

QJsonObject entryOf(const QJsonObject& menu, const QString& id)
{
    for (const QJsonValue entry : menu.value(QStringLiteral("items")).toArray()) {
        if (entry.toObject().value(QStringLiteral("id")).toString() == id)
            return entry.toObject();
    }
    return {};
}

QStringList inserted(QStringList ids, const QString& after)
{
    ids.insert(ids.indexOf(after) + 1, kSeparator);
    ids.insert(ids.indexOf(after) + 2, kEntry);
    return ids;
}

// The default profile with the application menu's entries replaced by `ids`.
QByteArray profileWithEntries(const QStringList& ids)
{
    QFile file(QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QJsonObject profile = QJsonDocument::fromJson(file.readAll()).object();
    QJsonArray groups = profile.value(QStringLiteral("groups")).toArray();
    for (int g = 0; g < groups.size(); ++g) {
        QJsonObject group = groups[g].toObject();
        if (!group.value(QStringLiteral("main")).toBool())
            continue;
        QJsonArray menus = group.value(QStringLiteral("applicationMenu")).toArray();
        QJsonObject top = menus.first().toObject();
        QJsonArray entries;
        for (const QString& id : ids)
            entries.append(QJsonObject{{QStringLiteral("id"), id}, {QStringLiteral("text"), id}});
        top.insert(QStringLiteral("items"), entries);
        menus.replace(0, top);
        group.insert(QStringLiteral("applicationMenu"), menus);
        groups.replace(g, group);
    }
    profile.insert(QStringLiteral("groups"), groups);
    return QJsonDocument(profile).toJson();
}

TEST(PublishEntry, StandsAfterRsmi10WithItsSeparatorWhileTheMainWindowExists)
{
    HostProcess host;
    const HostResult result = host.runScript(QStringLiteral(
        "ui\nmainframe create\nui\nmainframe destroy\nui\nmainframe create\nmainframe destroy\n"
        "mainframe create\nui\nmainframe destroy\nui"));
    ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
    const auto uis = result.events.named(QStringLiteral("ui"));
    ASSERT_EQ(uis.size(), 5);
    const QStringList before = entryIds(applicationMenuOf(uis[0]));
    ASSERT_TRUE(before.contains(QStringLiteral("RSMI_10")));
    ASSERT_FALSE(before.contains(kSeparator));

    const QJsonObject menu = applicationMenuOf(uis[1]);
    EXPECT_EQ(entryIds(menu), inserted(before, QStringLiteral("RSMI_10")));
    EXPECT_TRUE(entryOf(menu, kSeparator).value(QStringLiteral("separator")).toBool());
    const QJsonObject entry = entryOf(menu, kEntry);
    EXPECT_EQ(entry.value(QStringLiteral("text")).toString(), QStringLiteral("Publish Viewcast"));
    const QJsonObject command = entry.value(QStringLiteral("command")).toObject();
    EXPECT_EQ(command.value(QStringLiteral("id")).toString(), QStringLiteral("ID_PUBVIEWCAST"));
    EXPECT_EQ(command.value(QStringLiteral("macro")).toString(), QStringLiteral("_VIEWCAST"));
    EXPECT_EQ(command.value(QStringLiteral("description")).toString(),
              QStringLiteral("Opens the drawings in Viewcast"));
    EXPECT_EQ(command.value(QStringLiteral("largeIcon")).toArray().first().toString(),
              QStringLiteral(":/images/BFResources/Resources/vcst_publish_24.png"));
    EXPECT_EQ(command.value(QStringLiteral("smallIcon")).toArray().first().toString(),
              QStringLiteral(":/images/BFResources/Resources/vcst_Publish_16.png.png"));

    EXPECT_EQ(entryIds(applicationMenuOf(uis[2])), before);
    EXPECT_EQ(entryIds(applicationMenuOf(uis[3])), inserted(before, QStringLiteral("RSMI_10")))
        << "a window made again after two rounds has one entry and one separator";
    EXPECT_EQ(entryIds(applicationMenuOf(uis[4])), before);
}

TEST(PublishEntry, WithoutRsmi10ItFollowsTheLastEntryAndWithoutEntriesItIsPlacedNowhere)
{
    HostProcess host;
    const QString profile = host.home() + QStringLiteral("/profile.json");
    const struct
    {
        QStringList entries;
        QStringList expected;
    } cases[] = {
        {{QStringLiteral("RSMI_1"), QStringLiteral("rsmi_10"), QStringLiteral("RSMI_20")},
         {QStringLiteral("RSMI_1"), QStringLiteral("rsmi_10"), kSeparator, kEntry,
          QStringLiteral("RSMI_20")}},
        {{QStringLiteral("RSMI_1"), QStringLiteral("RSMI_2")},
         {QStringLiteral("RSMI_1"), QStringLiteral("RSMI_2"), kSeparator, kEntry}},
        {{}, {}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.entries.join(QLatin1Char(' ')).toStdString());
        QFile file(profile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(profileWithEntries(each.entries));
        file.close();
        const HostResult result =
            host.runScript(QStringLiteral("mainframe create\nui\nmainframe destroy\nui"),
                           {QStringLiteral("--ui-profile"), profile});
        ASSERT_EQ(result.exitCode, 0) << result.standardError.toStdString();
        const auto uis = result.events.named(QStringLiteral("ui"));
        ASSERT_EQ(uis.size(), 2);
        EXPECT_EQ(entryIds(applicationMenuOf(uis[0])), each.expected);
        EXPECT_EQ(entryIds(applicationMenuOf(uis[1])), each.entries);
    }
}
} // namespace
