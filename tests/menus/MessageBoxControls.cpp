#include "MessageBoxControls.h"

#include <QCheckBox>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include <gtest/gtest.h>

namespace MessageBoxControls {

QCheckBox* checkBox(QWidget* dialog)
{
    return dialog->findChild<QCheckBox*>(QStringLiteral("checkBox"));
}

QDialogButtonBox* buttonBox(QWidget* dialog)
{
    return dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
}

void tick(QWidget* dialog)
{
    QCheckBox* box = checkBox(dialog);
    ASSERT_NE(box, nullptr);
    // A click counts only on the indicator or the text, not anywhere in the wide box.
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect indicator =
        box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, indicator.center());
}

void press(QWidget* dialog, QDialogButtonBox::StandardButton button)
{
    QDialogButtonBox* box = buttonBox(dialog);
    ASSERT_NE(box, nullptr);
    QAbstractButton* target = box->button(button);
    ASSERT_NE(target, nullptr) << "no such button in the box";
    QTest::mouseClick(target, Qt::LeftButton);
}

} // namespace MessageBoxControls
