#include "HostOptions.h"

#include "HostError.h"
#include "QuotedText.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

namespace {
int parseInteger(const QString& text, const QString& option)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok)
        throw HostError(QStringLiteral("--%1 takes a whole number, not '%2'")
                            .arg(option, QuotedText::of(text)));
    return value;
}

// A part of the product version is digits only: toInt() would also take a sign or blanks.
bool isDigits(const QString& part)
{
    return !part.isEmpty() && std::all_of(part.begin(), part.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
}

void parseProductVersion(const QString& text, int (&version)[4])
{
    const QStringList parts = text.split(QLatin1Char('.'));
    if (parts.size() != 4)
        throw HostError(QStringLiteral("--product-version takes four numbers A.B.C.D, not '%1'")
                            .arg(QuotedText::of(text)));
    for (int i = 0; i < 4; ++i) {
        if (!isDigits(parts[i]))
            throw HostError(
                QStringLiteral("--product-version takes whole numbers 0, 1, 2, ..., not '%1'")
                    .arg(QuotedText::of(parts[i])));
        version[i] = parseInteger(parts[i], QStringLiteral("product-version"));
    }
}

// QCommandLineParser takes the program's name from QCoreApplication's arguments, and the host
// reads its options before it creates its application (the locale must be set first): help
// is written with a short-lived application of its own.
QString helpTextOf(const QCommandLineParser& parser)
{
    if (QCoreApplication::instance())
        return parser.helpText();
    int argc = 1;
    char program[] = "quillon-host";
    char* argv[] = {program, nullptr};
    const QCoreApplication application(argc, argv);
    return parser.helpText();
}

// The product version as --product-version writes it: A.B.C.D.
QString versionText(const int (&version)[4])
{
    QStringList parts;
    for (int part : version)
        parts << QString::number(part);
    return parts.join(QLatin1Char('.'));
}

void defineOptions(QCommandLineParser& parser)
{
    // The defaults shown in the help are those of options given nothing.
    const HostOptions defaults;
    parser.setApplicationDescription(
        QStringLiteral("The reference Quillon host: loads modules, runs a script of host actions "
                       "and command lines, and prints every observable effect as an event."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("module"), QStringLiteral("Load this module at start (repeatable)."),
         QStringLiteral("NAME")},
        {QStringLiteral("no-module"), QStringLiteral("Load no module at start.")},
        {QStringLiteral("module-path"),
         QStringLiteral("Look for modules in DIR (repeatable; default: beside the program)."),
         QStringLiteral("DIR")},
        {QStringLiteral("companion-path"),
         QStringLiteral("Look for companion libraries in DIR (default: beside the program)."),
         QStringLiteral("DIR")},
        {QStringLiteral("language"),
         QStringLiteral(
             "The host's user-interface language id (0 System, 1 German, 2 English, ...)."),
         QStringLiteral("ID"), QString::number(defaults.languageId)},
        {QStringLiteral("locale"),
         QStringLiteral("The operating system's locale, as Qt names it (de_DE, zh_TW, C)."),
         QStringLiteral("NAME")},
        {QStringLiteral("product-version"), QStringLiteral("The host's product version."),
         QStringLiteral("A.B.C.D"), versionText(defaults.productVersion)},
        {QStringLiteral("ui-profile"),
         QStringLiteral("Build the user interface from this UI profile (JSON) instead of the "
                        "built-in one."),
         QStringLiteral("FILE")},
        {QStringLiteral("registry"),
         QStringLiteral("Use FILE as the system registry's stand-in (default: "
                        "Corvane/registry.ini in the user's configuration folder)."),
         QStringLiteral("FILE")},
        {QStringLiteral("refuse-urls"),
         QStringLiteral("Make the desktop refuse every web address that is handed to it.")},
        {QStringLiteral("c"),
         QStringLiteral("Run TEXT as the script (statements separated by newlines or ';')."),
         QStringLiteral("TEXT")},
        {QStringLiteral("json"), QStringLiteral("Write each event as one JSON object per line.")},
        {QStringLiteral("demo"),
         QStringLiteral("Play the demo session even when a display is present.")},
    });
    parser.addPositionalArgument(QStringLiteral("SCRIPT"), QStringLiteral("A script file to run."),
                                 QStringLiteral("[SCRIPT]"));
}
} // namespace

HostOptions HostOptions::parse(const QStringList& arguments, QString& helpText, bool& exitEarly)
{
    QCommandLineParser parser;
    defineOptions(parser);
    exitEarly = false;
    if (!parser.parse(QStringList{QStringLiteral("quillon-host")} + arguments))
        throw HostError(QuotedText::within(parser.errorText()));
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version"))) {
        helpText = parser.isSet(QStringLiteral("help")) ? helpTextOf(parser)
                                                        : QStringLiteral("quillon-host 1.0.0\n");
        exitEarly = true;
        return {};
    }
    HostOptions options;
    if (parser.isSet(QStringLiteral("no-module")))
        options.modules.clear();
    if (parser.isSet(QStringLiteral("module")))
        options.modules = parser.values(QStringLiteral("module"));
    options.modulePath = parser.values(QStringLiteral("module-path"));
    options.companionPath = parser.value(QStringLiteral("companion-path"));
    options.languageId =
        parseInteger(parser.value(QStringLiteral("language")), QStringLiteral("language"));
    options.locale = parser.value(QStringLiteral("locale"));
    options.uiProfile = parser.value(QStringLiteral("ui-profile"));
    options.registryFile = parser.value(QStringLiteral("registry"));
    parseProductVersion(parser.value(QStringLiteral("product-version")), options.productVersion);
    options.refuseUrls = parser.isSet(QStringLiteral("refuse-urls"));
    options.json = parser.isSet(QStringLiteral("json"));
    options.demo = parser.isSet(QStringLiteral("demo"));
    if (parser.isSet(QStringLiteral("c")))
        options.scriptText = parser.value(QStringLiteral("c"));
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 1)
        throw HostError(QStringLiteral("one script at most, not %1")
                            .arg(QuotedText::of(positional.join(QLatin1Char(' ')))));
    if (!positional.isEmpty() && options.scriptText)
        throw HostError(QStringLiteral("give either a script file or -c TEXT, not both"));
    if (!positional.isEmpty())
        options.scriptFile = positional.first();
    return options;
}
