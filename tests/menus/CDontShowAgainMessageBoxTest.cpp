// The don't-show-again message box as callers and users meet it: when it shows, what its
// buttons store in the settings file that all message boxes share, and when it stays silent.
#include "IsolatedHome.h"
#include "MessageBoxControls.h"
#include "ModalDialogDriver.h"

#include <QCheckBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

#include <ExtCommands/CDontShowAgainMessageBox.h>

#include <functional>
#include <string>
#include <vector>

using MessageBoxControls::press;
using MessageBoxControls::tick;

namespace {
constexpr auto okCancel = QDialogButtonBox::Ok | QDialogButtonBox::Cancel;

struct Showing
{
    int result;
    int shown;
};

class DontShowAgainMessageBox : public ::testing::Test
{
protected:
    QString folder() const
    {
        return m_home.folders().dataHome() + QStringLiteral("/Corvane/Quillon");
    }
    QString settingsFile() const
    {
        return folder() + QStringLiteral("/dontshowagainmessagebox.ini");
    }

    // The stored text of `id`'s check state, or "(absent)".
    std::string stored(const QString& id) const
    {
        const QSettings settings(settingsFile(), QSettings::IniFormat);
        const QString key = id + QStringLiteral("/checked");
        return settings.contains(key) ? settings.value(key).toString().toStdString() : "(absent)";
    }

    void writeSettings(const QByteArray& text) const
    {
        QDir().mkpath(folder());
        QFile file(settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    // Asks for the box of `id`, with `user` acting on it if it shows, and closes it again.
    static Showing showBox(const QString& id, ModalDialogDriver::Action user)
    {
        ModalDialogDriver driver(std::move(user));
        int result = -1;
        {
            CDontShowAgainMessageBox box(id, QStringLiteral("Message"), okCancel);
            result = box.execUnlessSuppressed();
        }
        return {result, driver.dialogsShown()};
    }

    static void tickAndAccept(QWidget* dialog)
    {
        tick(dialog);
        press(dialog, QDialogButtonBox::Ok);
    }

    static void accept(QWidget* dialog) { press(dialog, QDialogButtonBox::Ok); }
    static void cancel(QWidget* dialog) { press(dialog, QDialogButtonBox::Cancel); }

    IsolatedHome m_home;
};

TEST_F(DontShowAgainMessageBox, TickedAndAcceptedSilencesTheMessageForGood)
{
    ModalDialogDriver user(tickAndAccept);
    {
        CDontShowAgainMessageBox box(QStringLiteral("first"), QStringLiteral("Message"), okCancel);
        EXPECT_TRUE(QFileInfo(folder() + QStringLiteral("/Quillon")).isDir());
        EXPECT_EQ(box.execUnlessSuppressed(), QDialog::Accepted);
        EXPECT_EQ(box.execUnlessSuppressed(), 0);
    }
    EXPECT_EQ(user.dialogsShown(), 1);
    EXPECT_EQ(stored(QStringLiteral("first")), "2");
    EXPECT_FALSE(
        QFileInfo::exists(folder() + QStringLiteral("/Quillon/dontshowagainmessagebox.ini")));

    const Showing again = showBox(QStringLiteral("first"), cancel);
    EXPECT_EQ(again.result, 0);
    EXPECT_EQ(again.shown, 0);
}

TEST_F(DontShowAgainMessageBox, TickedButNotAcceptedStoresNothing)
{
    const std::vector<std::pair<const char*, ModalDialogDriver::Action>> ways = {
        {"Cancel button", cancel},
        {"Escape key", [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }},
        {"window closed", [](QWidget* dialog) { dialog->close(); }},
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(way.first);
        const Showing showing = showBox(QStringLiteral("first"), [&way](QWidget* dialog) {
            tick(dialog);
            way.second(dialog);
        });
        EXPECT_EQ(showing.result, QDialog::Rejected);
        EXPECT_EQ(showing.shown, 1);
        EXPECT_EQ(stored(QStringLiteral("first")), "(absent)");
    }
}

TEST_F(DontShowAgainMessageBox, TwoIdentifiersAreIndependentKeysInOneFile)
{
    EXPECT_EQ(showBox(QStringLiteral("first"), tickAndAccept).shown, 1);
    const Showing second = showBox(QStringLiteral("second"), accept);
    EXPECT_EQ(second.result, QDialog::Accepted);
    EXPECT_EQ(second.shown, 1);

    EXPECT_EQ(stored(QStringLiteral("first")), "2");
    EXPECT_EQ(stored(QStringLiteral("second")), "0");
    EXPECT_EQ(showBox(QStringLiteral("first"), cancel).shown, 0);
    EXPECT_EQ(showBox(QStringLiteral("second"), cancel).shown, 1);
}

TEST_F(DontShowAgainMessageBox, OnlyACheckedStateSuppresses)
{
    writeSettings("[partial]\nchecked=1\n[word]\nchecked=yes\n");
    const std::vector<std::pair<const char*, Qt::CheckState>> cases = {
        {"partial", Qt::PartiallyChecked},
        {"word", Qt::Unchecked},
    };
    for (const auto& stateCase : cases) {
        SCOPED_TRACE(stateCase.first);
        Qt::CheckState shownState = Qt::Checked;
        const Showing showing =
            showBox(QString::fromLatin1(stateCase.first), [&shownState](QWidget* dialog) {
                shownState = MessageBoxControls::checkBox(dialog)->checkState();
                cancel(dialog);
            });
        EXPECT_EQ(showing.shown, 1);
        EXPECT_EQ(shownState, stateCase.second);
    }
}

// Permissions do not stop a test that runs as root; a file where the folder belongs does.
TEST_F(DontShowAgainMessageBox, UnwritableDataFolderShowsTheBoxAndStoresNothing)
{
    const QString blocker = m_home.folders().dataHome() + QStringLiteral("/Corvane");
    {
        QFile file(blocker);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    const Showing showing = showBox(QStringLiteral("first"), tickAndAccept);
    EXPECT_EQ(showing.result, QDialog::Accepted);
    EXPECT_EQ(showing.shown, 1);

    EXPECT_TRUE(QFileInfo(blocker).isFile());
    QDirIterator files(m_home.path(), {QStringLiteral("dontshowagainmessagebox.ini")}, QDir::Files,
                       QDirIterator::Subdirectories);
    EXPECT_FALSE(files.hasNext()) << files.next().toStdString();
}
} // namespace
