// The sibling that docs/siblings.md walks through, built from the code blocks of the page itself
// against the installed package, and run as the page says: in the host of the same prefix, with
// the host's folder and the sibling's build folder as module folders.
#include "HostModel.h"
#include "HostProcess.h"
#include "TestPrinters.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {
const QString kPrefix = QStringLiteral(EC_FIRST_SIBLING_PREFIX);
const QString kBuild = QStringLiteral(EC_FIRST_SIBLING_BUILD);

QString macroOf(const QJsonObject& group, const QString& command)
{
    return firstWithId(group["commands"], command)["macro"].toString();
}
} // namespace

TEST(FirstSibling, BuiltFromThePageRunsInTheInstalledHost)
{
    QFile cache(kBuild + QStringLiteral("/CMakeCache.txt"));
    ASSERT_TRUE(cache.open(QIODevice::ReadOnly));
    EXPECT_TRUE(cache.readAll().contains(
        QStringLiteral("ExtCommands_DIR:PATH=%1/lib/cmake/ExtCommands\n").arg(kPrefix).toUtf8()));

    HostProcess host;
    host.setProgram(kPrefix + QStringLiteral("/bin/quillon-host"));
    const HostResult result =
        host.run({"--module-path", kPrefix + "/bin", "--module-path", kBuild, "--module",
                  "ExtCommands", "--module", "HelloSibling", "-c",
                  "mainframe create; ui; HELLO; _HELLO; unload HelloSibling; ui; commands"});
    ASSERT_TRUE(ranCleanly(result));
    EXPECT_EQ(result.events.values("module-loaded", "module"),
              QStringList({"ExtCommands", "HelloSibling", "QNTForgeportConnector"}));
    EXPECT_TRUE(result.events.values("command-added", "name").contains("_HELLO"));
    EXPECT_EQ(result.events.values("command-output", "text"),
              QStringList({"Hello from HelloSibling", "Hello from HelloSibling"}));
    EXPECT_EQ(result.events.values("translator-installed", "file").size(), 4)
        << "the prefix's catalogues, beside its host";

    const QVector<QJsonObject> states = models(result);
    ASSERT_EQ(states.size(), 2);
    const QJsonArray buttons = rowButtons(states[0]);
    EXPECT_EQ(ids(buttons), QStringList({"ID_HELLO_GREETINGS", "ID_HELLO_ITEM"}));
    EXPECT_EQ(ids(buttons, "text"), QStringList({"Greetings", "Hello"}));
    EXPECT_EQ(ids(firstWithId(buttons, "ID_HELLO_GREETINGS")["buttons"], "text"),
              QStringList({"Hello Again", "Hello in Any Language"}));
    EXPECT_EQ(macroOf(states[0], "ID_HELLO_ITEM"), "HELLO");
    EXPECT_EQ(macroOf(states[0], "ID_HELLO_GLOBAL"), "_HELLO");

    const QJsonObject after = states[1];
    EXPECT_TRUE(firstWithId(after["tabs"], kAddInsTab).isEmpty()) << "its last button went";
    EXPECT_TRUE(ids(after["commands"]).filter("ID_HELLO").isEmpty()) << "entries' commands too";
    EXPECT_FALSE(result.events.named("commands")
                     .last()
                     .fields["names"]
                     .toArray()
                     .contains(QJsonValue("HELLO")));
    EXPECT_EQ(result.events.values("module-unloaded", "module").first(), "HelloSibling");
}
