// The reference viewer on a bus of its own, called as a client would: it opens only drawings,
// and it goes when its bus goes.
#include "HostProcess.h"
#include "PrivateSessionBus.h"
#include "TestPrinters.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

#include <signal.h>

namespace {
bool running(qint64 pid)
{
    QFile stat(QString("/proc/%1/stat").arg(pid));
    return stat.open(QIODevice::ReadOnly) && !stat.readAll().contains(") Z ");
}

TEST(ReferenceViewer, RefusesWhatIsNotADrawingAndEndsWithItsBus)
{
    HostProcess shell;
    PrivateSessionBus bus(shell.home() + "/bus");
    ASSERT_EQ(QProcess::execute(HostProcess::stageFolder() + "/vcst-viewer",
                                {"--install", bus.serviceFolder(), "--version", "10", "--registry",
                                 shell.home() + "/registry.ini"}),
              0);
    QFile notes(shell.home() + "/notes.dxf");
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    notes.write("  0\nSECTION\n  2\nHEADER\n");
    notes.close();

    // Two calls of version 10's open method, then the process that owns its bus name.
    shell.setLauncher(bus.launcher());
    shell.setProgram("/bin/sh");
    const HostResult run = shell.runReadable(
        {"-c", QString("call() { dbus-send --session --print-reply "
                       "--dest=com.corvane.VcModelViewer.VcstViewer.v10 /VcModelViewer/Application "
                       "com.corvane.VcModelViewer.IVcModelViewApp.OpenDocument \"string:$1\" "
                       "string:x.vcst string: string: boolean:true boolean:true; echo exit=$?; }\n"
                       "call '%1/nowhere.dxf'; call '%2'\n"
                       "dbus-send --session --print-reply --dest=org.freedesktop.DBus "
                       "/org/freedesktop/DBus org.freedesktop.DBus.GetConnectionUnixProcessID "
                       "string:com.corvane.VcModelViewer.VcstViewer.v10")
                   .arg(shell.home(), notes.fileName())});
    EXPECT_EQ(run.output.mid(0, 2), QStringList({"exit=1", "exit=1"}));
    EXPECT_TRUE(
        run.standardError.contains("CannotOpen: no such file: " + shell.home() + "/nowhere.dxf"))
        << run.standardError.toStdString();
    EXPECT_TRUE(run.standardError.contains("it ends without an EOF group"))
        << run.standardError.toStdString();

    const qint64 viewer = run.output.last().section(' ', -1).toLongLong();
    ASSERT_GT(viewer, 0) << run.output.join('\n').toStdString();
    QDeadlineTimer deadline(10000);
    while (running(viewer) && !deadline.hasExpired())
        QThread::msleep(50);
    EXPECT_FALSE(running(viewer)) << "the viewer outlived its bus";
    if (running(viewer))
        ::kill(static_cast<pid_t>(viewer), SIGTERM);
}
} // namespace
