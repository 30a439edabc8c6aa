// The host's parts: splitting a script into statements and words, the command line, the library
// search path it starts itself with, how an event is written, as one JSON object per line or one
// readable line, and how the host watches the addresses and translators that modules hand to Qt.
#include "CompanionSearch.h"
#include "EventPrinter.h"
#include "EventRecorder.h"
#include "HostError.h"
#include "HostOptions.h"
#include "ScriptParser.h"
#include "TestPrinters.h"
#include "TranslationObserver.h"
#include "UrlRecorder.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTranslator>
#include <QUrl>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {
QStringList wordsOf(const QString& script)
{
    QStringList statements;
    for (const ScriptStatement& statement : ScriptParser::parse(script))
        statements << QString::number(statement.line) + ": " + statement.words.join('|');
    return statements;
}

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

QString arranged(const QByteArray& current)
{
    const auto searchPath =
        CompanionSearch::arrangedSearchPath(current, QStringLiteral("/opt/quillon/companions"));
    return searchPath ? QString::fromUtf8(*searchPath) : QStringLiteral("<as it is>");
}

QString companionFolderRefusal(const QString& companionPath)
{
    try {
        return QStringLiteral("<accepted> ") + CompanionSearch::folder(companionPath);
    } catch (const HostError& error) {
        return error.message();
    }
}
} // namespace

TEST(ScriptParserTest, SplitsLinesAndSemicolonsIntoStatementsAndQuotesKeepWordsWhole)
{
    EXPECT_EQ(wordsOf("load ExtCommands\r\n\n  open\tplan.dxf ;; activate 1\n"
                      "# only a comment\nHome   # runs the home command;not a statement"),
              QStringList({"1: load|ExtCommands", "3: open|plan.dxf", "3: activate|1", "5: Home"}));
    EXPECT_TRUE(ScriptParser::parse(" \n#\n ; ").isEmpty());
    // Double quotes keep blanks, semicolons and hashes in one word.
    EXPECT_EQ(wordsOf("SAMPLELOAD \"my ribbon.json\" \"\"; X \"a;b # c\" pre\"fix suf\"fix"),
              QStringList({"1: SAMPLELOAD|my ribbon.json|", "1: X|a;b # c|prefix suffix"}));
    EXPECT_EQ(ScriptParser::parse("open \"my plan.dxf\"").first().text, "open my plan.dxf");
}

// The product version, which no session of these tests sets, and how repeated options combine.
TEST(HostOptionsTest, RepeatedOptionsAddUpAndModulesGivenReplaceTheDefaultList)
{
    const HostOptions options =
        parse({"--module", "A", "--module", "B", "--module-path", "m1", "--module-path", "m2",
               "--product-version", "2017.0.5.1234"});
    EXPECT_EQ(options.modules, QStringList({"A", "B"}));
    EXPECT_EQ(options.modulePath, QStringList({"m1", "m2"}));
    EXPECT_EQ(std::vector<int>(options.productVersion, options.productVersion + 4),
              std::vector<int>({2017, 0, 5, 1234}));
    EXPECT_TRUE(parse({"--no-module"}).modules.isEmpty());
    EXPECT_EQ(parse({"--no-module", "--module", "A"}).modules, QStringList({"A"}));
    EXPECT_FALSE(parse({}).refuseUrls);
    EXPECT_TRUE(parse({"--refuse-urls"}).refuseUrls);
}

TEST(HostOptionsTest, RefusesBadArgumentsWithAClearMessage)
{
    EXPECT_EQ(refusal({"--module"}), "Missing value after '--module'.");
    EXPECT_EQ(refusal({"--language", "English"}), "--language takes a whole number, not 'English'");
    EXPECT_EQ(refusal({"--product-version", "2017.0.5"}),
              "--product-version takes four numbers A.B.C.D, not '2017.0.5'");
    EXPECT_EQ(refusal({"--product-version", "2017.0.x.5"}),
              "--product-version takes whole numbers 0, 1, 2, ..., not 'x'");
    EXPECT_EQ(refusal({"--product-version", "-1.-2.-3.-4"}),
              "--product-version takes whole numbers 0, 1, 2, ..., not '-1'");
    EXPECT_EQ(refusal({"--product-version", "2017.+2.3.4"}),
              "--product-version takes whole numbers 0, 1, 2, ..., not '+2'");
    EXPECT_EQ(refusal({"--product-version", "2017.0. 5.1"}),
              "--product-version takes whole numbers 0, 1, 2, ..., not ' 5'");
    EXPECT_EQ(refusal({"--product-version", "2017.0.5.99999999999"}),
              "--product-version takes a whole number, not '99999999999'");
    EXPECT_EQ(refusal({"a.qs", "b.qs"}), "one script at most, not a.qs b.qs");
    EXPECT_EQ(refusal({"a.qs", "-c", "Home"}), "give either a script file or -c TEXT, not both");
}

// The search path the host starts itself again with: the companion folder first and the rest as
// it was; nothing to do when the folder leads already, however it is spelt there.
TEST(CompanionSearchTest, PutsTheCompanionFolderFirstUnlessItLeadsAlready)
{
    // No empty part: the loader would take it for the current folder.
    EXPECT_EQ(arranged(""), "/opt/quillon/companions");
    EXPECT_EQ(arranged("/usr/local/lib:/opt/qt"), "/opt/quillon/companions:/usr/local/lib:/opt/qt");
    EXPECT_EQ(arranged("/opt/qt:/opt/quillon/companions"),
              "/opt/quillon/companions:/opt/qt:/opt/quillon/companions");
    EXPECT_EQ(arranged("/opt/quillon"), "/opt/quillon/companions:/opt/quillon");
    EXPECT_EQ(arranged("/opt/quillon/companions/extra"),
              "/opt/quillon/companions:/opt/quillon/companions/extra");
    for (const char* leading : {"/opt/quillon/companions", "/opt/quillon/companions/:/opt/qt",
                                "/opt/quillon//companions:/opt/qt", "/opt/quillon/companions;/x"})
        EXPECT_EQ(arranged(leading), "<as it is>") << leading;
}

TEST(CompanionSearchTest, TakesTheFolderFromTheCurrentOneAndRefusesWhatASearchPathCannotName)
{
    EXPECT_EQ(companionFolderRefusal("some/where/../companions"),
              "<accepted> " + QDir::currentPath() + "/some/companions");
    EXPECT_EQ(companionFolderRefusal(""), "<accepted> " + QCoreApplication::applicationDirPath());
    for (const char* special : {":", ";", "$"}) {
        const QString folder = QStringLiteral("/tmp/a%1b").arg(special);
        EXPECT_EQ(companionFolderRefusal(folder),
                  QStringLiteral("the companion folder %1 holds '%2', which the library search "
                                 "path (LD_LIBRARY_PATH) cannot name")
                      .arg(folder, special));
    }
}

TEST(EventPrinterTest, WritesTheFieldsInTheirOrderAsJsonOrAsReadableText)
{
    const OdEventFields fields{{"name", "_Home"},
                               {"result", 5100},
                               {"args", QJsonArray{"a b", 1}},
                               {"path", "/my drawings/plan \"A\".dxf"},
                               {"none", QJsonValue()}};
    EXPECT_EQ(EventPrinter::jsonLine("command-ended", fields),
              R"({"event":"command-ended","name":"_Home","result":5100,"args":["a b",1],)"
              R"("path":"/my drawings/plan \"A\".dxf","none":null})");
    EXPECT_EQ(EventPrinter::readableLine("command-ended", fields),
              R"(command-ended name=_Home result=5100 args=["a b",1] )"
              R"(path="/my drawings/plan \"A\".dxf" none=null)");
    EXPECT_EQ(EventPrinter::readableLine("mainframe-created", {}), "mainframe-created");
    // Only a word that cannot run into the next field stands bare; an event stays one line.
    EXPECT_EQ(EventPrinter::readableLine("url-opened",
                                         {{"equals", "a=b"}, {"empty", ""}, {"tail", "plan\n"}}),
              R"(url-opened equals="a=b" empty="" tail="plan\n")");
}

// Each main window installs translators of its own and takes them away again: in a long session
// the observer keeps only those still installed (a statement costs what is installed, not all
// that ever was), and still reports each new one, also one made where an old one was.
TEST(TranslationObserverTest, RemembersOnlyTheTranslatorsStillInstalled)
{
    EventRecorder events;
    TranslationObserver observer;
    const int before = observer.remembered();
    for (int window = 0; window < 100; ++window) {
        std::vector<std::unique_ptr<QTranslator>> translators;
        for (int i = 0; i < 4; ++i) {
            translators.push_back(std::make_unique<QTranslator>());
            QCoreApplication::installTranslator(translators.back().get());
        }
        observer.statementEnded();
        EXPECT_EQ(observer.remembered(), before + 4);
    }
    observer.statementEnded();
    EXPECT_EQ(observer.remembered(), before);
    EXPECT_EQ(events.events().count("translator-installed"), 400);
    EXPECT_EQ(events.events().count("translator-removed"), 400);
}

// A translator taken away is reported with the file it had loaded, whether it was removed or
// deleted, as Qt announces it (so in the order of removal); one still installed is not.
TEST(TranslationObserverTest, ReportsEachTranslatorTakenAwayWithItsFile)
{
    QTemporaryDir folder;
    const auto catalogue = [&folder](const char* name) {
        // The smallest catalogue that QTranslator loads: the magic number alone.
        const QString path = folder.filePath(QString::fromLatin1(name) + ".qm");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd"));
        return path;
    };
    std::vector<std::unique_ptr<QTranslator>> translators;
    for (const char* name : {"first", "second", "third"}) {
        translators.push_back(std::make_unique<QTranslator>());
        ASSERT_TRUE(translators.back()->load(catalogue(name)));
        QCoreApplication::installTranslator(translators.back().get());
    }
    EventRecorder events;
    TranslationObserver observer;
    QCoreApplication::removeTranslator(translators[2].get());
    translators[0].reset();
    observer.statementEnded();
    EXPECT_EQ(events.events().values("translator-removed", "file"),
              QStringList({folder.filePath("third.qm"), folder.filePath("first.qm")}));
    EXPECT_EQ(events.events().count("translator-installed"), 0);
    QCoreApplication::installTranslator(translators[2].get());
    observer.statementEnded();
    EXPECT_EQ(events.events().values("translator-installed", "file"),
              QStringList{folder.filePath("third.qm")});
    EXPECT_EQ(events.events().count("translator-removed"), 2) << "the second stayed throughout";
}

TEST(TranslationObserverTest, GoesThroughTheTranslatorsOnlyAfterQtChangedThemAndSeesAnAddressReused)
{
    EventRecorder events;
    TranslationObserver observer;
    const int before = observer.remembered();
    std::vector<std::unique_ptr<QTranslator>> kept;
    for (int i = 0; i < 8; ++i) {
        kept.push_back(std::make_unique<QTranslator>());
        QCoreApplication::installTranslator(kept.back().get());
    }
    observer.statementEnded();
    const int walks = observer.walks();
    for (int statement = 0; statement < 20; ++statement)
        observer.statementEnded();
    EXPECT_EQ(observer.walks(), walks);

    // A translator deleted and another one made at its very address before the next look.
    alignas(QTranslator) unsigned char storage[sizeof(QTranslator)];
    QCoreApplication::installTranslator(new (storage) QTranslator);
    observer.statementEnded();
    reinterpret_cast<QTranslator*>(storage)->~QTranslator();
    QCoreApplication::installTranslator(new (storage) QTranslator);
    observer.statementEnded();
    EXPECT_EQ(events.events().count("translator-installed"), 10);
    EXPECT_EQ(events.events().count("translator-removed"), 1);
    EXPECT_EQ(observer.remembered(), before + int(kept.size()) + 1);
    reinterpret_cast<QTranslator*>(storage)->~QTranslator();
}

// What a module learns when it hands an address to the desktop: opened, or refused by a
// desktop that cannot open it (--refuse-urls). Either way the host reports the address.
struct DesktopCase
{
    bool refusing;
    bool opened;
    const char* event;
};

void PrintTo(const DesktopCase& desktop, std::ostream* out)
{
    *out << (desktop.refusing ? "refusing" : "accepting");
}

class DesktopTest : public ::testing::TestWithParam<DesktopCase>
{};

TEST_P(DesktopTest, ReportsEveryWebAddressAndAnswersAsTheDesktopWould)
{
    EventRecorder events;
    {
        const UrlRecorder recorder(GetParam().refusing);
        EXPECT_EQ(QDesktopServices::openUrl(QUrl("http://www.corvane.com/a b")), GetParam().opened);
        EXPECT_EQ(QDesktopServices::openUrl(QUrl("https://labs.corvane.com/")), GetParam().opened);
    }
    EXPECT_EQ(events.events().names(), QStringList({GetParam().event, GetParam().event}));
    EXPECT_EQ(events.events().values(GetParam().event, "url"),
              QStringList({"http://www.corvane.com/a b", "https://labs.corvane.com/"}));
}

INSTANTIATE_TEST_SUITE_P(Desktops, DesktopTest,
                         ::testing::Values(DesktopCase{false, true, "url-opened"},
                                           DesktopCase{true, false, "url-refused"}));
