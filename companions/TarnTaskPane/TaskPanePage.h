#pragma once

#include <QString>
#include <QUuid>

class QTextBrowser;

// The page that the task pane shows: the maker's welcome, news and links, the installation it
// serves, and, once asked for, the notice about the Viewcast viewer. It is styled with the
// style sheet that the ExtCommands module carries when that module is loaded, and plainly
// otherwise.
class TaskPanePage
{
public:
    void setInstallation(const QUuid& installationId, const QString& tag);
    void setViewcastNotice(bool shown);

    QString html() const;
    // A browser showing the page; its links open in the user's web browser.
    QTextBrowser* createBrowser() const;
    // Shows the page anew in `browser`, style sheet included.
    void showIn(QTextBrowser* browser) const;

    static QString styleSheet();
    static QString viewcastNoticeText();
    // Where the module's resources are: the style sheet and the images it names.
    static QString resourceFolder();

private:
    QString viewcastBox() const;
    QString welcomeBox() const;
    QString installationBox() const;

    QUuid m_installationId;
    QString m_tag;
    bool m_viewcastNotice = false;
};
