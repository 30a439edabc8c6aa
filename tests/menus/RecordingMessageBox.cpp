#include "RecordingMessageBox.h"

RecordingMessageBox::RecordingMessageBox(const QString& id, const QString& message,
                                         QDialogButtonBox::StandardButtons buttons)
    : CDontShowAgainMessageBox(id, message, buttons)
{}

void RecordingMessageBox::buttonHelp()
{
    ++m_helpRequests;
}

void RecordingMessageBox::buttonClicked(QAbstractButton* button)
{
    const auto* box = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    m_clicked.append(box->standardButton(button));
}
