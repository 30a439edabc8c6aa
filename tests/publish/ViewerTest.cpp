// The reference viewer on its own: what its installer writes, what it refuses to install, and
// what it refuses to open when a client calls it on the bus.
#include "HostProcess.h"
#include "PrivateSessionBus.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <CFxRegistry.h>

namespace {
struct ProgramRun
{
    int exitCode = -1;
    QString output;
};

ProgramRun runProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    ProgramRun run;
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
        run.output = QStringLiteral("did not finish");
        return run;
    }
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.output = QString::fromUtf8(process.readAll());
    return run;
}

QString viewer()
{
    return HostProcess::stageFolder() + QStringLiteral("/vcst-viewer");
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(ReferenceViewer, InstallWritesOneServiceFilePerVersionAndTheCurrentVersion)
{
    QTemporaryDir folder;
    const QString services = folder.filePath(QStringLiteral("services"));
    const QString registry = folder.filePath(QStringLiteral("registry.ini"));
    {
        QSettings existing(registry, QSettings::IniFormat);
        existing.setValue(QStringLiteral("HKEY_LOCAL_MACHINE/SOFTWARE/Other/Value"), 7);
    }
    const ProgramRun install =
        runProgram(viewer(), {QStringLiteral("--install"), services, QStringLiteral("--version"),
                              QStringLiteral("12"), QStringLiteral("--version"),
                              QStringLiteral("9"), QStringLiteral("--registry"), registry});
    ASSERT_EQ(install.exitCode, 0) << install.output.toStdString();

    EXPECT_EQ(QDir(services).entryList(QDir::Files),
              (QStringList{QStringLiteral("com.corvane.VcModelViewer.VcstViewer.v12.service"),
                           QStringLiteral("com.corvane.VcModelViewer.VcstViewer.v9.service")}));
    EXPECT_EQ(
        textOf(services + QStringLiteral("/com.corvane.VcModelViewer.VcstViewer.v12.service")),
        QStringLiteral("[D-BUS Service]\nName=com.corvane.VcModelViewer.VcstViewer.v12\n"
                       "Exec=%1 --serve 12\n")
            .arg(viewer()));
    CFxRegistry::setStandInFile(registry);
    EXPECT_EQ(
        CFxRegistry::openKey(QStringLiteral("HKEY_CLASSES_ROOT\\VcModelViewer.VcstViewer\\CurVer"))
            ->value(QStringLiteral("Default"))
            .toString(),
        QStringLiteral("VcModelViewer.VcstViewer.12"));
    EXPECT_EQ(CFxRegistry::openKey(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Other"))
                  ->value(QStringLiteral("Value"))
                  .toInt(),
              7)
        << "other registry values stay";
    CFxRegistry::setStandInFile(QString());
}

TEST(ReferenceViewer, RefusesBadRequestsWithAReasonAndWritesNothing)
{
    QTemporaryDir folder;
    const QString services = folder.filePath(QStringLiteral("services"));
    const QString registry = folder.filePath(QStringLiteral("registry.ini"));
    const QList<QStringList> requests = {
        {},
        {QStringLiteral("--install"), services, QStringLiteral("--registry"), registry},
        {QStringLiteral("--install"), services, QStringLiteral("--version"), QStringLiteral("8"),
         QStringLiteral("--registry"), registry},
        {QStringLiteral("--install"), services, QStringLiteral("--version"), QStringLiteral("ten"),
         QStringLiteral("--registry"), registry},
        {QStringLiteral("--serve"), QStringLiteral("3")},
        {QStringLiteral("--serve"), QStringLiteral("10"), QStringLiteral("--version"),
         QStringLiteral("10")},
        {QStringLiteral("--install"), services, QStringLiteral("--serve"), QStringLiteral("10")},
        {QStringLiteral("--install"), services, QStringLiteral("--version"), QStringLiteral("10"),
         QStringLiteral("stray")},
    };
    for (const QStringList& request : requests) {
        SCOPED_TRACE(request.join(QLatin1Char(' ')).toStdString());
        const ProgramRun run = runProgram(viewer(), request);
        EXPECT_NE(run.exitCode, 0);
        EXPECT_TRUE(run.output.startsWith(QStringLiteral("vcst-viewer: ")))
            << run.output.toStdString();
        EXPECT_FALSE(QFile::exists(services));
        EXPECT_FALSE(QFile::exists(registry));
    }
}

TEST(ReferenceViewer, OpensOnlyFilesThatAreDrawings)
{
    HostProcess host;
    PrivateSessionBus bus(host.home() + QStringLiteral("/bus"));
    ASSERT_EQ(runProgram(viewer(), {QStringLiteral("--install"), bus.serviceFolder(),
                                    QStringLiteral("--version"), QStringLiteral("10"),
                                    QStringLiteral("--registry"),
                                    host.home() + QStringLiteral("/registry.ini")})
                  .exitCode,
              0);
    const QString notes = host.home() + QStringLiteral("/notes.dxf");
    QFile file(notes);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("  0\nSECTION\n  2\nHEADER\n");
    file.close();
    const QString call = QStringLiteral(
        "dbus-send --session --print-reply --dest=com.corvane.VcModelViewer.VcstViewer.v10 "
        "/VcModelViewer/Application com.corvane.VcModelViewer.IVcModelViewApp.OpenDocument "
        "string:'%1' string:x.vcst string: string: boolean:true boolean:true; echo exit=$?");
    const QString script = call.arg(host.home() + QStringLiteral("/nowhere.dxf")) +
                           QLatin1Char('\n') + call.arg(notes);
    const ProgramRun run = runProgram(
        QStringLiteral("dbus-run-session"),
        bus.launcher().mid(1) + QStringList{QStringLiteral("sh"), QStringLiteral("-c"), script});
    EXPECT_TRUE(
        run.output.contains(QStringLiteral("no such file: %1/nowhere.dxf").arg(host.home())))
        << run.output.toStdString();
    EXPECT_TRUE(run.output.contains(QStringLiteral("it ends without an EOF group")))
        << run.output.toStdString();
    EXPECT_EQ(run.output.count(QStringLiteral("exit=1")), 2) << run.output.toStdString();
}
} // namespace
