// The don't-show-again message box as callers, users and derived boxes meet it: when it shows,
// what its buttons store in the settings file that all message boxes share, and its form.
#include "IsolatedHome.h"
#include "TestPrinters.h"

#include <QApplication>
#include <QCheckBox>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <QTranslator>

#include <gtest/gtest.h>

#include <ExtCommands/CDontShowAgainMessageBox.h>

#include <functional>
#include <utility>

namespace {
using Action = std::function<void(QWidget* dialog)>;
// What execUnlessSuppressed() returned, and how many boxes showed.
using Showing = std::pair<int, int>;

// Plays the user while it lives: hands each box that comes up to `act`, which must close it.
class User
{
public:
    explicit User(Action act)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, act] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || !dialog->isVisible())
                return;
            ++shown;
            act(dialog);
            if (dialog->isVisible()) {
                ADD_FAILURE() << "the box is still open after the user's action";
                dialog->close();
            }
        });
        m_timer.start(10);
    }

    int shown = 0;

private:
    QTimer m_timer;
};

void press(QWidget* dialog, QDialogButtonBox::StandardButton which)
{
    QAbstractButton* button = dialog->findChild<QDialogButtonBox*>("buttonBox")->button(which);
    ASSERT_NE(button, nullptr) << "no such button";
    button->click();
}

QCheckBox* checkBox(QWidget* dialog)
{
    return dialog->findChild<QCheckBox*>("checkBox");
}

void accept(QWidget* dialog)
{
    press(dialog, QDialogButtonBox::Ok);
}

void cancel(QWidget* dialog)
{
    press(dialog, QDialogButtonBox::Cancel);
}

void tickAndAccept(QWidget* dialog)
{
    checkBox(dialog)->click();
    accept(dialog);
}

class DontShowAgainMessageBox : public ::testing::Test
{
protected:
    QString folder() const { return m_home.folders().dataHome() + "/Corvane/Quillon"; }
    QString settingsFile() const { return folder() + "/dontshowagainmessagebox.ini"; }

    QString stored(const QString& id) const
    {
        return QSettings(settingsFile(), QSettings::IniFormat)
            .value(id + "/checked", "(absent)")
            .toString();
    }

    static Showing show(const QString& id, const Action& act)
    {
        User user(act);
        CDontShowAgainMessageBox box(id, "Message",
                                     QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        return {box.execUnlessSuppressed(), user.shown};
    }

    IsolatedHome m_home;
};

// Kept: docs/lifecycle.md, row "Message-box settings".
TEST_F(DontShowAgainMessageBox, TickedAndAcceptedSilencesThatMessageAloneForGood)
{
    {
        User user(tickAndAccept);
        CDontShowAgainMessageBox box("first", "Message", QDialogButtonBox::Ok);
        // The folder is made with one more of its own name inside, as users' profiles have it.
        EXPECT_TRUE(QFileInfo(folder() + "/Quillon").isDir());
        EXPECT_EQ(box.execUnlessSuppressed(), QDialog::Accepted);
        EXPECT_EQ(box.execUnlessSuppressed(), 0);
        EXPECT_EQ(user.shown, 1);
    }
    EXPECT_EQ(stored("first"), "2");
    EXPECT_EQ(show("first", cancel), Showing(0, 0));

    EXPECT_EQ(show("second", accept), Showing(QDialog::Accepted, 1));
    EXPECT_EQ(stored("second"), "0");
    EXPECT_EQ(stored("first"), "2");
    EXPECT_EQ(show("second", cancel), Showing(QDialog::Rejected, 1));
}

struct UnticksBy
{
    const char* name;
    Action leave; // how the user leaves the box without accepting it
};

// How failures and CTest name the case.
void PrintTo(const UnticksBy& each, std::ostream* out)
{
    *out << each.name;
}

class DontShowAgainLeft : public DontShowAgainMessageBox,
                          public ::testing::WithParamInterface<UnticksBy>
{};

TEST_P(DontShowAgainLeft, TickedButNotAcceptedStoresNothing)
{
    const Action leave = GetParam().leave;
    EXPECT_EQ(show("first",
                   [&leave](QWidget* dialog) {
                       checkBox(dialog)->click();
                       leave(dialog);
                   }),
              Showing(QDialog::Rejected, 1));
    EXPECT_EQ(stored("first"), "(absent)");
}

INSTANTIATE_TEST_SUITE_P(Ways, DontShowAgainLeft,
                         ::testing::Values(UnticksBy{"Cancel", cancel},
                                           UnticksBy{"WindowClosed",
                                                     [](QWidget* dialog) { dialog->close(); }}));

// Only a stored checked state suppresses the box: any other stored state shows it, with the
// check box as the state reads (a word reads as unchecked).
struct StoredState
{
    const char* id;
    QVariant stored;
    Qt::CheckState shown;
};

// How failures and CTest name the case.
void PrintTo(const StoredState& each, std::ostream* out)
{
    *out << each.id;
}

class DontShowAgainStored : public DontShowAgainMessageBox,
                            public ::testing::WithParamInterface<StoredState>
{};

TEST_P(DontShowAgainStored, OtherThanCheckedShowsTheBoxWithTheStateAsItReads)
{
    QSettings(settingsFile(), QSettings::IniFormat)
        .setValue(QString(GetParam().id) + "/checked", GetParam().stored);
    Qt::CheckState state = Qt::Checked;
    EXPECT_EQ(show(GetParam().id,
                   [&state](QWidget* dialog) {
                       state = checkBox(dialog)->checkState();
                       cancel(dialog);
                   }),
              Showing(QDialog::Rejected, 1));
    EXPECT_EQ(state, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(States, DontShowAgainStored,
                         ::testing::Values(StoredState{"partial", 1, Qt::PartiallyChecked},
                                           StoredState{"word", "yes", Qt::Unchecked}));

// Permissions do not stop a test that runs as root; a file where the folder belongs does.
TEST_F(DontShowAgainMessageBox, AnUnwritableDataFolderLeavesABoxThatWorksAndStoresNothing)
{
    QFile blocker(m_home.folders().dataHome() + "/Corvane");
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();

    EXPECT_EQ(show("first", tickAndAccept), Showing(QDialog::Accepted, 1));
    EXPECT_EQ(show("first", cancel), Showing(QDialog::Rejected, 1));
    QDirIterator files(m_home.path(), {"dontshowagainmessagebox.ini"}, QDir::Files,
                       QDirIterator::Subdirectories);
    EXPECT_FALSE(files.hasNext()) << qPrintable(files.next());
}

// A derived box as a sibling module writes one.
class RecordingBox : public CDontShowAgainMessageBox
{
public:
    using CDontShowAgainMessageBox::CDontShowAgainMessageBox;

    int helpRequests = 0;
    QList<QDialogButtonBox::StandardButton> clicked;

protected:
    void buttonHelp() override { ++helpRequests; }
    void buttonClicked(QAbstractButton* button) override
    {
        clicked << findChild<QDialogButtonBox*>("buttonBox")->standardButton(button);
    }
};

// "Translates" every text to its translation context and source text.
class TaggingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString("%1: %2").arg(context, text);
    }
    bool isEmpty() const override { return false; }
};

TEST_F(DontShowAgainMessageBox, ADerivedBoxGetsTheTranslatedTitleTheWindowKindAndItsOwnSlots)
{
    TaggingTranslator translator;
    QApplication::installTranslator(&translator);
    QString title;
    Qt::WindowFlags flags;
    User user([&](QWidget* dialog) {
        title = dialog->windowTitle();
        flags = dialog->windowFlags();
        press(dialog, QDialogButtonBox::Help);
        press(dialog, QDialogButtonBox::Ok);
    });
    RecordingBox box("derived", "Message", QDialogButtonBox::Ok | QDialogButtonBox::Help);
    EXPECT_EQ(box.execUnlessSuppressed(), QDialog::Accepted);
    QApplication::removeTranslator(&translator);

    EXPECT_EQ(title, "DontShowAgainMessageBoxDialog: Quillon");
    EXPECT_EQ(flags, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::MSWindowsFixedSizeDialogHint | Qt::WindowCloseButtonHint);
    EXPECT_EQ(box.helpRequests, 1);
    EXPECT_EQ(box.clicked, QList({QDialogButtonBox::Help, QDialogButtonBox::Ok}));
}
} // namespace
