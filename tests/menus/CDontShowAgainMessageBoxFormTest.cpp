// The form of the don't-show-again message box as a user sees it and a developer who derives
// from it relies on it: names, texts, window kind and arrangement, and the slots it calls.
#include "IsolatedHome.h"
#include "MessageBoxControls.h"
#include "ModalDialogDriver.h"
#include "RecordingMessageBox.h"
#include "TaggingTranslator.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>

#include <gtest/gtest.h>

#include <ExtCommands/CDontShowAgainMessageBox.h>

#include <vector>

using MessageBoxControls::buttonBox;
using MessageBoxControls::checkBox;
using MessageBoxControls::press;

namespace {
const QString message = QStringLiteral("The drawing refers to files that were not found. They "
                                       "are left out of what is published.");

QLabel* label(QWidget* dialog)
{
    return dialog->findChild<QLabel*>(QStringLiteral("label"));
}

void expectWindow(QWidget* dialog)
{
    EXPECT_EQ(dialog->objectName(), QStringLiteral("DontShowAgainMessageBoxDialog"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Quillon"));
    const Qt::WindowFlags flags = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                  Qt::MSWindowsFixedSizeDialogHint | Qt::WindowCloseButtonHint;
    EXPECT_EQ(dialog->windowFlags(), flags);
    EXPECT_EQ(dialog->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(dialog->contextMenuPolicy(), Qt::NoContextMenu);
    EXPECT_EQ(dialog->size(), QSize(399, 143));
}

void expectWidgets(QWidget* dialog)
{
    ASSERT_NE(label(dialog), nullptr);
    ASSERT_NE(checkBox(dialog), nullptr);
    ASSERT_NE(buttonBox(dialog), nullptr);
    EXPECT_EQ(label(dialog)->text(), message);
    EXPECT_TRUE(label(dialog)->wordWrap());
    EXPECT_EQ(checkBox(dialog)->text(), QStringLiteral("Don't show again"));
    EXPECT_EQ(checkBox(dialog)->checkState(), Qt::Unchecked);
    EXPECT_EQ(buttonBox(dialog)->standardButtons(),
              QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Help);
    EXPECT_TRUE(buttonBox(dialog)->centerButtons());
}

// Message, check box and buttons form one column, top to bottom, inside the window.
void expectArrangement(QWidget* dialog)
{
    const std::vector<QWidget*> column = {label(dialog), checkBox(dialog), buttonBox(dialog)};
    for (size_t i = 0; i < column.size(); ++i) {
        const QRect place = column[i]->geometry();
        EXPECT_TRUE(dialog->rect().contains(place)) << i;
        EXPECT_EQ(place.left(), column[0]->geometry().left()) << i;
        EXPECT_EQ(place.width(), column[0]->geometry().width()) << i;
        if (i > 0) {
            EXPECT_GT(place.top(), column[i - 1]->geometry().bottom()) << i;
        }
    }
}

TEST(DontShowAgainMessageBoxForm, FixedSmallApplicationModalDialogWithTheCallersButtons)
{
    IsolatedHome home;
    ModalDialogDriver user([](QWidget* dialog) {
        expectWindow(dialog);
        expectWidgets(dialog);
        expectArrangement(dialog);
        press(dialog, QDialogButtonBox::Yes);
    });
    CDontShowAgainMessageBox box(QStringLiteral("form"), message,
                                 QDialogButtonBox::Yes | QDialogButtonBox::No |
                                     QDialogButtonBox::Help);
    EXPECT_EQ(box.execUnlessSuppressed(), QDialog::Accepted);
    EXPECT_EQ(user.dialogsShown(), 1);
}

TEST(DontShowAgainMessageBoxForm, TitleAndCheckBoxAreTranslatedInTheFormsContext)
{
    IsolatedHome home;
    TaggingTranslator translator;
    QApplication::installTranslator(&translator);
    QString title, checkBoxText, labelText;
    {
        ModalDialogDriver user([&](QWidget* dialog) {
            title = dialog->windowTitle();
            checkBoxText = checkBox(dialog)->text();
            labelText = label(dialog)->text();
            press(dialog, QDialogButtonBox::Ok);
        });
        CDontShowAgainMessageBox box(QStringLiteral("form"), message, QDialogButtonBox::Ok);
        box.execUnlessSuppressed();
    }
    QApplication::removeTranslator(&translator);

    EXPECT_EQ(title, QStringLiteral("DontShowAgainMessageBoxDialog: Quillon"));
    EXPECT_EQ(checkBoxText, QStringLiteral("DontShowAgainMessageBoxDialog: Don't show again"));
    EXPECT_EQ(labelText, message);
}

TEST(DontShowAgainMessageBoxForm, DerivedBoxReceivesHelpAndClicks)
{
    IsolatedHome home;
    ModalDialogDriver user([](QWidget* dialog) {
        press(dialog, QDialogButtonBox::Help);
        press(dialog, QDialogButtonBox::Ok);
    });
    RecordingMessageBox box(QStringLiteral("derived"), message,
                            QDialogButtonBox::Ok | QDialogButtonBox::Help);
    EXPECT_EQ(box.execUnlessSuppressed(), QDialog::Accepted);
    EXPECT_EQ(user.dialogsShown(), 1);
    EXPECT_EQ(box.helpRequests(), 1);
    const QList<QDialogButtonBox::StandardButton> clicked = {QDialogButtonBox::Help,
                                                             QDialogButtonBox::Ok};
    EXPECT_EQ(box.clicked(), clicked);
}

// A derived box that does not wait in exec() still blocks the rest of the application.
TEST(DontShowAgainMessageBoxForm, DerivedBoxShownWithoutExecIsApplicationModal)
{
    IsolatedHome home;
    RecordingMessageBox box(QStringLiteral("derived"), message, QDialogButtonBox::Ok);
    box.show();
    QWidget* modal = QApplication::activeModalWidget();
    ASSERT_NE(modal, nullptr);
    EXPECT_EQ(modal->objectName(), QStringLiteral("DontShowAgainMessageBoxDialog"));
    modal->close();
}
} // namespace
