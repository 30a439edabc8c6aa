#pragma once

#include "ExtCommandsExport.h"
#include "ui_CDontShowAgainMessageBox.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>

class QAbstractButton;
class QSettings;

// A modal message with a "Don't show again" check box. Once the user has ticked the box and
// confirmed with an accepting button, the message with the same identifier is not shown
// again. The choice of every identifier is kept in one INI file in the user's data folder,
// so it outlives the session and is shared by all message boxes of the host.
//
// QDialog is a protected base: callers show the box only through execUnlessSuppressed(), so
// none can show a message that the user has silenced, while a derived message box still has
// the whole dialog at hand. A derived box overrides buttonHelp() and buttonClicked(); the
// form's widgets can be found by their object names "label", "checkBox" and "buttonBox".
class EXTCOMMANDS_EXPORT CDontShowAgainMessageBox : protected QDialog
{
    Q_OBJECT

public:
    CDontShowAgainMessageBox(const QString& id, const QString& message,
                             QDialogButtonBox::StandardButtons buttons, QWidget* parent = nullptr);
    ~CDontShowAgainMessageBox() override;

    // Shows the box and returns QDialog::Accepted or QDialog::Rejected; returns 0 at once,
    // without showing anything, when the user has silenced this message.
    int execUnlessSuppressed();

protected Q_SLOTS:
    // Stores the check box state for this message, then accepts.
    virtual void buttonAccept();
    // Rejects; a ticked check box is not stored.
    virtual void buttonReject();
    // Do nothing here; derived message boxes override them.
    virtual void buttonHelp();
    virtual void buttonClicked(QAbstractButton* button);
    // Follows the check box; the state is stored only by buttonAccept().
    virtual void checkboxStateChanged(int state);

private:
    // A derived box is laid out after these members, in a sibling's own build: their order,
    // types and sizes are part of the module's binary interface. The form is the one generated
    // from the module's .ui file, and comes with this header.
    Ui::DontShowAgainMessageBoxDialog m_form;
    int m_checkState;
    // Owned; null when the settings could not be opened.
    QSettings* m_settings;
    QString m_id;
};
