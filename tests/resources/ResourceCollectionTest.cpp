// The module's compiled-in resources: the tree under ":/images/BFResources/", present exactly
// while the module is loaded, and the task pane's style sheet.
#include "IsolatedHome.h"
#include "LoadedModule.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QResource>
#include <QSet>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <OdSharedLibrary.h>

namespace {
const QString kRoot = QStringLiteral(":/images/BFResources/");

const char* const kPartKeys[] = {"BALLOON_INSERT",
                                 "BALLOON_EDIT",
                                 "BALLOON_SETTINGS",
                                 "BOM_CREATE",
                                 "BOM_EDIT",
                                 "BOM_EXPORT",
                                 "CONFIGURE",
                                 "FLIPSFIN",
                                 "HARDWARE",
                                 "HARDWARE_EDIT",
                                 "HCHART",
                                 "HCHART_EDIT",
                                 "HDIM",
                                 "HOLEFEAT",
                                 "HOLEFEAT_EDIT",
                                 "OPTIONS",
                                 "REVISION_INSERT",
                                 "REVISIONTABLE",
                                 "REVISIONTABLE_EDIT",
                                 "REVSYMBOL_INSERT",
                                 "SCREWCONNECTION_EDIT",
                                 "SCREWCONNECTION_INSERT",
                                 "SFIN",
                                 "WELD"};

QStringList pictures()
{
    QStringList paths;
    for (const char* name : {"community.jpg", "rss.jpg", "news.jpg", "leaf.jpg", "screen.png",
                             "tabHR.jpg", "tit_Squareicons.gif", "ico_tab.gif", "ico_arrow.gif"})
        paths << kRoot + QStringLiteral("images/") + QLatin1String(name);
    paths << kRoot + QStringLiteral("Resources/vcst_Publish_16.png")
          << kRoot + QStringLiteral("Resources/vcst_publish_24.png");
    for (const char* key : kPartKeys) {
        paths << kRoot + QStringLiteral("Resources/PK_%1_small.png").arg(QLatin1String(key))
              << kRoot + QStringLiteral("Resources/PK_%1_large.png").arg(QLatin1String(key));
    }
    return paths;
}

QStringList collection()
{
    return QStringList{kRoot + QStringLiteral("taskpaneStyles.css")} + pictures();
}

QStringList resolving(const QStringList& paths)
{
    QStringList found;
    for (const QString& path : paths) {
        if (QFile::exists(path))
            found << path;
    }
    return found;
}

QSet<QString> filesUnderRoot()
{
    QSet<QString> files;
    QDirIterator it(kRoot, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    return files;
}

QByteArray formatOf(const QString& path)
{
    const QString suffix = path.section(QLatin1Char('.'), -1);
    return suffix == QLatin1String("jpg") ? QByteArray("jpeg") : suffix.toLatin1();
}

QByteArray pixelDigest(const QImage& image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QByteArray::number(pixels.width()) + 'x' + QByteArray::number(pixels.height()));
    hash.addData(reinterpret_cast<const char*>(pixels.constBits()),
                 static_cast<int>(pixels.sizeInBytes()));
    return hash.result();
}

QString styleSheet()
{
    QFile file(kRoot + QStringLiteral("taskpaneStyles.css"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// "selector { a: b; c: d; }" rules as "selector{a:b;c:d}", white space collapsed.
QStringList rules(QString css)
{
    css.remove(QRegularExpression(QStringLiteral("^@charset \"utf-8\";")));
    QStringList result;
    for (QString rule : css.split(QLatin1Char('}'), Qt::SkipEmptyParts)) {
        rule = rule.simplified();
        if (rule.isEmpty())
            continue;
        rule.replace(QRegularExpression(QStringLiteral("\\s*([{};:,])\\s*")),
                     QStringLiteral("\\1"));
        result << rule + QLatin1Char('}');
    }
    return result;
}
} // namespace

TEST(ResourceCollection, HoldsExactlyItsTreeFromModuleLoadToModuleUnload)
{
    IsolatedHome home;
    ASSERT_TRUE(resolving(collection()).isEmpty());
    LoadedModule module;

    const QStringList expected = collection();
    EXPECT_EQ(filesUnderRoot(), QSet<QString>(expected.begin(), expected.end()));
    for (const QString& path : expected) {
        const QResource resource(path);
        EXPECT_TRUE(resource.isValid()) << path.toStdString();
        EXPECT_EQ(resource.compressionAlgorithm(), QResource::NoCompression) << path.toStdString();
        EXPECT_FALSE(resource.lastModified().isValid())
            << path.toStdString() << ": format 1 records no times";
    }

    EXPECT_FALSE(QFile::exists(kRoot + "Resources/vcst_Publish_16.png.png"))
        << "the publish entry's small icon reference names no file";
    EXPECT_FALSE(QFile::exists(kRoot + "Resources/vcst_publish_16.png")) << "names keep their case";

    const QString library = module.path();
    ASSERT_TRUE(module.unload());
    EXPECT_FALSE(OdSharedLibrary::isLoaded(OdString(library.toStdWString())))
        << "the library really went";
    EXPECT_EQ(resolving(expected), QStringList());
    EXPECT_FALSE(QDir(kRoot).exists());
}

TEST(ResourceCollection, PicturesAreSmallDistinctImagesInTheFormatsTheirNamesSay)
{
    IsolatedHome home;
    LoadedModule module;
    QSet<QByteArray> digests;
    for (const QString& path : pictures()) {
        QImageReader reader(path);
        EXPECT_EQ(reader.format(), formatOf(path)) << path.toStdString();
        const QImage image = reader.read();
        ASSERT_FALSE(image.isNull())
            << path.toStdString() << ": " << reader.errorString().toStdString();
        EXPECT_LE(image.width() * image.height(), 160 * 48) << path.toStdString();
        EXPECT_LE(QResource(path).size(), 8 * 1024) << path.toStdString();
        digests << pixelDigest(image);
    }
    EXPECT_EQ(digests.size(), pictures().size()) << "no two pictures look alike";

    EXPECT_EQ(QImage(kRoot + "Resources/vcst_Publish_16.png").size(), QSize(16, 16));
    EXPECT_EQ(QImage(kRoot + "Resources/vcst_publish_24.png").size(), QSize(24, 24));
    for (const char* key : kPartKeys) {
        const QString base = kRoot + QStringLiteral("Resources/PK_") + QLatin1String(key);
        EXPECT_LT(QImage(base + "_small.png").width(), QImage(base + "_large.png").width()) << key;
    }
}

TEST(TaskPaneStyleSheet, IsUtf8WithItsCharsetAndHoldsExactlyTheTaskPaneRules)
{
    IsolatedHome home;
    LoadedModule module;
    QFile file(kRoot + QStringLiteral("taskpaneStyles.css"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    EXPECT_EQ(state.invalidChars, 0);
    EXPECT_TRUE(bytes.startsWith("@charset \"utf-8\";"));

    EXPECT_EQ(rules(styleSheet()),
              (QStringList{
                  "*{margin:0px;padding:0px;}",
                  "body{background-color:#CCC;font-family:Verdana,Arial,Helvetica,sans-serif;"
                  "font-size:11px;color:#666666;}",
                  "#Panel{padding:0 7px;}",
                  "#Panel #panelBox{background:#FFFFFF;border:2px solid #8CC642;"
                  "padding:10px 8px;margin:7px 0;}",
                  "#Panel #panelBox #FeedBlock{margin:5px 5px 5px 10px;}",
                  "#boxTitle{height:30px;background:url(images/panel_icon.gif) no-repeat;"
                  "font-weight:bold;font-size:18px;color:#8CC642;}",
                  "#Panel #panelBox a{color:#666666;text-decoration:none;}",
                  "#Panel #panelBox a:hover,a:focus{border-bottom:1px;}",
                  "#Panel #panelBox dl{padding-left:14px;background:url(images/ico_arrow.gif) "
                  "no-repeat 0 4px;margin-left:28px;}",
                  "#Panel #panelBox .hr{padding:8px 20px;}",
                  "#panelBox dt{font-weight:bold;}",
              }));

    EXPECT_TRUE(QFile::exists(kRoot + "images/ico_arrow.gif")) << "the list bullet is beside it";
    EXPECT_FALSE(QFile::exists(kRoot + "images/panel_icon.gif")) << "the title icon is not";
}
