// quillon-host's command line.
#include "HostOptions.h"

#include "HostError.h"

#include <gtest/gtest.h>

#include <vector>

namespace {
HostOptions parse(const QStringList& arguments)
{
    QString helpText;
    bool exitEarly = false;
    return HostOptions::parse(arguments, helpText, exitEarly);
}

QString refusal(const QStringList& arguments)
{
    try {
        parse(arguments);
    } catch (const HostError& error) {
        return error.message();
    }
    return QStringLiteral("<accepted>");
}

std::vector<int> version(const HostOptions& options)
{
    return std::vector<int>(options.productVersion, options.productVersion + 4);
}
} // namespace

TEST(HostOptionsTest, ReadsEveryOption)
{
    const HostOptions options =
        parse({"--module", "A", "--module", "B", "--module-path", "m1", "--module-path", "m2",
               "--companion-path", "c", "--language", "0", "--locale", "zh_TW", "--product-version",
               "2017.0.5.1234", "--json", "-c", "Home; TUTORIAL"});
    EXPECT_EQ(options.modules, QStringList({"A", "B"}));
    EXPECT_EQ(options.modulePath, QStringList({"m1", "m2"}));
    EXPECT_EQ(options.companionPath, "c");
    EXPECT_EQ(options.languageId, 0);
    EXPECT_EQ(options.locale, "zh_TW");
    EXPECT_EQ(version(options), std::vector<int>({2017, 0, 5, 1234}));
    EXPECT_TRUE(options.json);
    EXPECT_EQ(options.scriptText, QString("Home; TUTORIAL"));

    EXPECT_TRUE(parse({"--no-module"}).modules.isEmpty());
    EXPECT_EQ(parse({"--no-module", "--module", "A"}).modules, QStringList({"A"}));
    EXPECT_EQ(parse({"session.qs"}).scriptFile, "session.qs");
}

TEST(HostOptionsTest, RefusesBadArgumentsWithAClearMessage)
{
    EXPECT_EQ(refusal({"--frobnicate"}), "Unknown option 'frobnicate'.");
    EXPECT_EQ(refusal({"--module"}), "Missing value after '--module'.");
    EXPECT_EQ(refusal({"--language", "English"}), "--language takes a whole number, not 'English'");
    EXPECT_EQ(refusal({"--product-version", "2017.0.5"}),
              "--product-version takes four numbers A.B.C.D, not '2017.0.5'");
    EXPECT_EQ(refusal({"--product-version", "2017.0.x.5"}),
              "--product-version takes a whole number, not 'x'");
    EXPECT_EQ(refusal({"a.qs", "b.qs"}), "one script at most, not a.qs b.qs");
    EXPECT_EQ(refusal({"a.qs", "-c", "Home"}), "give either a script file or -c TEXT, not both");
}
