#pragma once

#include <QDialogButtonBox>

class QCheckBox;
class QWidget;

// What a user does in a shown don't-show-again message box, reached through the object names
// of its form as a derived box or a sibling module would reach them.
namespace MessageBoxControls {
QCheckBox* checkBox(QWidget* dialog);
QDialogButtonBox* buttonBox(QWidget* dialog);

// Clicks the check box's indicator with the mouse.
void tick(QWidget* dialog);
// Clicks one of the standard buttons with the mouse.
void press(QWidget* dialog, QDialogButtonBox::StandardButton button);
} // namespace MessageBoxControls
