// The module's compiled-in resources: the tree under ":/images/BFResources/", present exactly
// while the module is loaded, and the task pane's style sheet.
#include "IsolatedHome.h"
#include "LoadedModule.h"
#include "TestPrinters.h"

#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {
const QString kRoot = QStringLiteral(":/images/BFResources/");

QStringList collection()
{
    QStringList paths{kRoot + "taskpaneStyles.css", kRoot + "Resources/vcst_Publish_16.png",
                      kRoot + "Resources/vcst_publish_24.png"};
    for (const char* name : {"community.jpg", "rss.jpg", "news.jpg", "leaf.jpg", "screen.png",
                             "tabHR.jpg", "tit_Squareicons.gif", "ico_tab.gif", "ico_arrow.gif"})
        paths << kRoot + "images/" + name;
    for (const char* key : {"BALLOON_INSERT",
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
                            "WELD"})
        paths << kRoot + "Resources/PK_" + key + "_small.png"
              << kRoot + "Resources/PK_" + key + "_large.png";
    return paths;
}

QSet<QString> filesUnderRoot()
{
    QSet<QString> files;
    QDirIterator it(kRoot, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    return files;
}
} // namespace

// Kept: docs/lifecycle.md, rows "Resource collection" and "Resource names".
TEST(ResourceCollection, HoldsExactlyItsTreeOfImagesFromModuleLoadToModuleUnload)
{
    IsolatedHome home;
    const QStringList paths = collection();
    EXPECT_TRUE(filesUnderRoot().isEmpty());
    LoadedModule module;
    EXPECT_EQ(filesUnderRoot(), QSet<QString>(paths.begin(), paths.end()));
    for (const QString& path : paths.mid(1)) {
        QImageReader reader(path);
        const QString suffix = path.section(QLatin1Char('.'), -1);
        EXPECT_EQ(reader.format(), suffix == "jpg" ? QByteArray("jpeg") : suffix.toLatin1())
            << qPrintable(path);
        EXPECT_FALSE(reader.read().isNull())
            << qPrintable(path) << ": " << qPrintable(reader.errorString());
    }
    EXPECT_EQ(QImage(kRoot + "Resources/vcst_publish_24.png").size(), QSize(24, 24));
    EXPECT_FALSE(QFile::exists(kRoot + "Resources/vcst_Publish_16.png.png"))
        << "the publish entry's small icon reference names no file";

    ASSERT_TRUE(module.unload());
    for (const QString& path : paths)
        EXPECT_FALSE(QFile::exists(path)) << qPrintable(path);
}

// Kept: docs/lifecycle.md, row "Resource names".
TEST(TaskPaneStyleSheet, DeclaresUtf8AndHoldsExactlyTheTaskPaneRules)
{
    IsolatedHome home;
    LoadedModule module;
    QFile file(kRoot + QStringLiteral("taskpaneStyles.css"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString css = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(css.startsWith("@charset \"utf-8\";"));
    css.remove(0, css.indexOf(';') + 1);

    // Each rule as "selector{a:b;c:d;}", with white space collapsed.
    QStringList rules;
    for (QString rule : css.split(QLatin1Char('}'), Qt::SkipEmptyParts)) {
        rule = rule.simplified();
        rule.replace(QRegularExpression(QStringLiteral("\\s*([{};:,])\\s*")), "\\1");
        if (!rule.isEmpty())
            rules << rule + QLatin1Char('}');
    }
    EXPECT_EQ(rules,
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
}
