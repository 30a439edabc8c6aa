#include "TarnCrashReportSendService.h"

#include "PendingCrashReports.h"

#include <QSettings>
#include <QStringList>

#include <CFxSystemServices.h>
#include <CompanionCall.h>

namespace {
const QString kLibrary = QString::fromLatin1(TarnCrashReportEntryPoints::library);

// The version is the user's: it lives in the user's settings, not beside the program.
QSettings userSettings()
{
    return QSettings(QSettings::UserScope, QStringLiteral("Corvane"),
                     QStringLiteral("CrashReport"));
}

const QString kVersionKey = QStringLiteral("Quillon/RegVersion");

void askAboutPendingReports(const QString& question)
{
    const QStringList reports = PendingCrashReports::list();
    if (reports.isEmpty())
        return;
    GetFxSystemServices()->FxMessageBox(
        question.arg(reports.size()).arg(reports.join(QStringLiteral(", "))),
        QStringLiteral("Quillon Crash Report"), 0);
}
} // namespace

bool TarnCrashReportSendService::getRegVersion(QString& version)
{
    reportCompanionCall(kLibrary, QStringLiteral("getRegVersion"));
    const QVariant recorded = userSettings().value(kVersionKey);
    if (!recorded.isValid())
        return false;
    version = recorded.toString();
    return true;
}

void TarnCrashReportSendService::setRegVersion(const QString& version)
{
    reportCompanionCall(kLibrary, QStringLiteral("setRegVersion"), {version});
    QSettings settings = userSettings();
    settings.setValue(kVersionKey, version);
}

void TarnCrashReportSendService::initialCheckOnInstall() const
{
    reportCompanionCall(kLibrary, QStringLiteral("initialCheckOnInstall"));
    askAboutPendingReports(QStringLiteral("Quillon has been updated. %1 crash report(s) from the "
                                          "previous version would be sent to Corvane: %2"));
}

void TarnCrashReportSendService::reminderCheck()
{
    reportCompanionCall(kLibrary, QStringLiteral("reminderCheck"));
    askAboutPendingReports(QStringLiteral("%1 crash report(s) are still waiting to be sent to "
                                          "Corvane: %2"));
}
