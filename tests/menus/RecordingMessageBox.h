#pragma once

#include <QList>

#include <ExtCommands/CDontShowAgainMessageBox.h>

// A derived message box as a sibling module writes one, with its own meta-object: it
// overrides the help and click slots and records what reached them, and it offers to show
// itself without waiting for the user.
class RecordingMessageBox : public CDontShowAgainMessageBox
{
    Q_OBJECT

public:
    RecordingMessageBox(const QString& id, const QString& message,
                        QDialogButtonBox::StandardButtons buttons);

    using QDialog::show;

    int helpRequests() const { return m_helpRequests; }
    // The standard buttons that were clicked, in order.
    QList<QDialogButtonBox::StandardButton> clicked() const { return m_clicked; }

protected:
    void buttonHelp() override;
    void buttonClicked(QAbstractButton* button) override;

private:
    int m_helpRequests = 0;
    QList<QDialogButtonBox::StandardButton> m_clicked;
};
