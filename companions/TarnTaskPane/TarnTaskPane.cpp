#include "CompanionDock.h"
#include "TaskPanePage.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QTextBrowser>

#include <CFxSystemServices.h>
#include <CompanionCall.h>
#include <TarnTaskPane.h>

namespace {
const QString kLibrary = QString::fromLatin1(TarnTaskPaneEntryPoints::library);

CompanionDock& paneDock()
{
    static CompanionDock dock("TarnTaskPane");
    return dock;
}

// What the pane shows, kept so that a notice joins the page that is already there.
TaskPanePage& page()
{
    static TaskPanePage shown;
    return shown;
}

void showPageAnew()
{
    if (QDockWidget* dock = paneDock().dock()) {
        if (auto* browser = qobject_cast<QTextBrowser*>(dock->widget()))
            page().showIn(browser);
    }
}
} // namespace

bool TarnTaskPane::addTaskPane(QUuid& installationId, const std::string& tag)
{
    const QString edition = QString::fromStdString(tag);
    reportCompanionCall(kLibrary, QStringLiteral("addTaskPane"),
                        {installationId.toString(), edition});
    page().setInstallation(installationId, edition);
    showPageAnew();
    return paneDock().add(QCoreApplication::translate("TarnTaskPane", "Task Pane"),
                          []() -> QWidget* { return page().createBrowser(); });
}

void TarnTaskPane::showTaskPane()
{
    reportCompanionCall(kLibrary, QStringLiteral("showTaskPane"));
    paneDock().show();
}

void TarnTaskPane::showViewcastMeassage()
{
    reportCompanionCall(kLibrary, QStringLiteral("showViewcastMeassage"));
    if (!paneDock().isAdded()) {
        // No pane to show it in (none installed in this window, or the network companions are
        // switched off): the user must still learn why nothing was published.
        GetFxSystemServices()->FxMessageBox(TaskPanePage::viewcastNoticeText(),
                                            QCoreApplication::translate("TarnTaskPane", "Viewcast"),
                                            0);
        return;
    }
    page().setViewcastNotice(true);
    showPageAnew();
    paneDock().show();
}
