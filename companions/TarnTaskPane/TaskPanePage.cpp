#include "TaskPanePage.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextBrowser>

namespace {
QString text(const char* source)
{
    return QCoreApplication::translate("TarnTaskPane", source);
}

QString link(const QString& path, const QString& caption)
{
    return QStringLiteral("<a href=\"http://%1%2\">%3</a>")
        .arg(QLatin1String(EXTCOMMANDS_CORPORATE_HOST), path, caption.toHtmlEscaped());
}

QString box(const QString& title, const QString& body)
{
    return QStringLiteral("<div id=\"panelBox\"><div id=\"boxTitle\">%1</div>"
                          "<div id=\"FeedBlock\">%2</div></div>")
        .arg(title.toHtmlEscaped(), body);
}

// Not a definition list: the style sheet gives lists a bullet image, which Qt's rich text
// repeats across the whole line.
QString entry(const QString& term, const QString& description)
{
    return QStringLiteral("<p><b>%1</b><br/>%2</p>").arg(term.toHtmlEscaped(), description);
}

// The module's rule image, or a plain rule while the module's images are not there.
QString separator()
{
    if (QFile::exists(TaskPanePage::resourceFolder() + QStringLiteral("/images/tabHR.jpg")))
        return QStringLiteral("<div class=\"hr\"><img src=\"images/tabHR.jpg\"/></div>");
    return QStringLiteral("<hr/>");
}

// Used while the module's style sheet is not there: the same colours, fewer details.
const char kPlainStyle[] = "body { background-color: #CCCCCC; color: #666666; }\n"
                           "#boxTitle { font-weight: bold; font-size: 18px; color: #8CC642; }\n"
                           "#panelBox { background-color: #FFFFFF; }\n"
                           "p { margin-bottom: 6px; }\n";
} // namespace

void TaskPanePage::setInstallation(const QUuid& installationId, const QString& tag)
{
    m_installationId = installationId;
    m_tag = tag;
}

void TaskPanePage::setViewcastNotice(bool shown)
{
    m_viewcastNotice = shown;
}

QString TaskPanePage::resourceFolder()
{
    return QStringLiteral(":/images/BFResources");
}

QString TaskPanePage::styleSheet()
{
    QFile file(resourceFolder() + QStringLiteral("/taskpaneStyles.css"));
    if (!file.open(QIODevice::ReadOnly))
        return QString::fromLatin1(kPlainStyle);
    return QString::fromUtf8(file.readAll());
}

QString TaskPanePage::viewcastNoticeText()
{
    return text("The Viewcast viewer is not installed, or its version is too old to open "
                "drawings from Quillon. Install the latest Viewcast viewer, then publish again.");
}

QString TaskPanePage::html() const
{
    QString body;
    if (m_viewcastNotice)
        body += viewcastBox();
    body += welcomeBox() + installationBox();
    return QStringLiteral("<html><body><div id=\"Panel\">%1</div></body></html>").arg(body);
}

QString TaskPanePage::viewcastBox() const
{
    return box(
        text("Viewcast"),
        QStringLiteral("<p>%1</p>").arg(viewcastNoticeText().toHtmlEscaped()) +
            entry(text("Get the viewer"),
                  link(QStringLiteral("/products-services/viewcast/"), text("Download Viewcast"))));
}

QString TaskPanePage::welcomeBox() const
{
    return box(
        text("Welcome to Quillon"),
        entry(text("What's new"),
              link(QStringLiteral("/products-services/quillon-cad-software/latest-version"),
                   text("Release notes of this version"))) +
            entry(text("Updates"), link(QStringLiteral("/products-services/quillon-cad-software/"
                                                       "free-download"),
                                        text("Check for a newer version"))) +
            entry(text("Community"),
                  text("Type Community to ask other Quillon users.").toHtmlEscaped()) +
            separator());
}

QString TaskPanePage::installationBox() const
{
    return box(text("This installation"),
               entry(text("Installation"), m_installationId.toString().toHtmlEscaped()) +
                   entry(text("Edition"), m_tag.toHtmlEscaped()));
}

QTextBrowser* TaskPanePage::createBrowser() const
{
    auto* browser = new QTextBrowser;
    browser->setObjectName(QString::fromLatin1("TaskPanePage"));
    browser->setOpenExternalLinks(true);
    browser->setSearchPaths({resourceFolder()});
    showIn(browser);
    return browser;
}

void TaskPanePage::showIn(QTextBrowser* browser) const
{
    browser->document()->setDefaultStyleSheet(styleSheet());
    browser->setHtml(html());
}
