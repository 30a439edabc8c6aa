// A sibling's don't-show-again box, with members of its own laid out after the module's, as the
// installed header places them. The module's code works on the base part of the object and the
// sibling's on the rest: any disagreement between the installed header and the library shows as
// a member of the sibling's overwritten, a stored state lost, or a crash.
//
// Runs in a home of its own (HOME and the XDG folders in a temporary folder); exits 0 when the
// box behaves, otherwise names each fault on standard error and exits 1.
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <ExtCommands/CDontShowAgainMessageBox.h>

#include <cstdio>

namespace {
constexpr quint64 kMarker = 0x5a5a'1234'abcd'0001;

int faults = 0;

void check(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "DerivedBoxCheck: %s\n", what);
        ++faults;
    }
}

class NoticeBox : public CDontShowAgainMessageBox
{
public:
    explicit NoticeBox(const QString& id)
        : CDontShowAgainMessageBox(id, QStringLiteral("A notice of the sibling"),
                                   QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                       QDialogButtonBox::Help)
    {}

    bool intact() const { return marker == kMarker && note == QLatin1String("sibling's own"); }

    int helpRequests = 0;

protected:
    void buttonHelp() override { ++helpRequests; }

private:
    quint64 marker = kMarker;
    QString note = QStringLiteral("sibling's own");
};

// Plays the user on each box that comes up: asks for help, ticks the box and accepts.
int tickAndAcceptEachBox()
{
    static int shown = 0;
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog && dialog->isVisible()) {
        ++shown;
        auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        buttons->button(QDialogButtonBox::Help)->click();
        dialog->findChild<QCheckBox*>(QStringLiteral("checkBox"))->click();
        buttons->button(QDialogButtonBox::Ok)->click();
    }
    return shown;
}

void isolateHome(const QString& folder)
{
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, QFile::encodeName(folder));
    const QString runtime = folder + QStringLiteral("/runtime");
    QDir().mkdir(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
}
} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    isolateHome(home.path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, tickAndAcceptEachBox);
    user.start(10);

    {
        NoticeBox box(QStringLiteral("notice"));
        check(box.intact(), "the sibling's members were changed by the box's construction");
        check(box.execUnlessSuppressed() == QDialog::Accepted, "the box was not accepted");
        check(box.helpRequests == 1, "the sibling's help slot was not called once");
        check(box.intact(), "the sibling's members were changed while the box showed");
    }
    const QSettings stored(home.path() +
                               QStringLiteral("/Corvane/Quillon/dontshowagainmessagebox.ini"),
                           QSettings::IniFormat);
    check(stored.value(QStringLiteral("notice/checked")).toInt() == Qt::Checked,
          "the ticked state was not stored when the box went");
    {
        NoticeBox box(QStringLiteral("notice"));
        check(box.execUnlessSuppressed() == 0, "a silenced box did not return 0");
        check(box.intact(), "the sibling's members were changed by a silenced box");
    }
    check(tickAndAcceptEachBox() == 1, "a silenced box showed");
    return faults == 0 ? 0 : 1;
}
