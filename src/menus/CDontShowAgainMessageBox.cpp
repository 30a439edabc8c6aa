#include "ExtCommands/CDontShowAgainMessageBox.h"

#include "common/HeapText.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace {
// A title bar with a close button and nothing else: no context help, no minimise or maximise.
constexpr Qt::WindowFlags boxWindowFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                           Qt::MSWindowsFixedSizeDialogHint |
                                           Qt::WindowCloseButtonHint;

QString settingsFolder()
{
    return QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                           heapText("/Corvane/Quillon"));
}

// Opens the file shared by every message box. Making the folder by its own name, relative to
// itself, creates the whole chain and also one empty nested folder of that name inside it,
// which is kept: docs/lifecycle.md, row "Message-box settings". A folder that cannot be made
// is no error: the choices then just do not persist.
QSettings* openSettings()
{
    const QDir folder(settingsFolder());
    folder.mkpath(folder.dirName());
    return new QSettings(folder.filePath(heapText("dontshowagainmessagebox.ini")),
                         QSettings::IniFormat);
}

QString checkedKey(const QString& id)
{
    return id + heapText("/checked");
}

// The helpers of the box are file-local rather than members: the class is exported whole, and
// what is not a member cannot become part of the interface that siblings are built against.
void setUpForm(Ui::DontShowAgainMessageBoxDialog& form, QDialog* box, const QString& message,
               QDialogButtonBox::StandardButtons buttons, int checkState)
{
    form.setupUi(box);
    form.label->setText(message);
    form.buttonBox->clear();
    form.buttonBox->setStandardButtons(buttons);
    form.checkBox->setCheckState(static_cast<Qt::CheckState>(checkState));
}

// Connected by name through the meta-object, so that the overrides of a derived message box
// are the ones called.
void connectForm(const Ui::DontShowAgainMessageBoxDialog& form, QObject* box)
{
    QObject::connect(form.buttonBox, SIGNAL(accepted()), box, SLOT(buttonAccept()));
    QObject::connect(form.buttonBox, SIGNAL(rejected()), box, SLOT(buttonReject()));
    QObject::connect(form.buttonBox, SIGNAL(helpRequested()), box, SLOT(buttonHelp()));
    QObject::connect(form.buttonBox, SIGNAL(clicked(QAbstractButton*)), box,
                     SLOT(buttonClicked(QAbstractButton*)));
    QObject::connect(form.checkBox, SIGNAL(stateChanged(int)), box,
                     SLOT(checkboxStateChanged(int)));
}
} // namespace

CDontShowAgainMessageBox::CDontShowAgainMessageBox(const QString& id, const QString& message,
                                                   QDialogButtonBox::StandardButtons buttons,
                                                   QWidget* parent)
    : QDialog(parent, boxWindowFlags), m_checkState(Qt::Unchecked), m_settings(openSettings()),
      m_id(id)
{
    // A value that is missing or not a number reads as 0, unchecked.
    if (m_settings)
        m_checkState = m_settings->value(checkedKey(m_id)).toInt();
    setUpForm(m_form, this, message, buttons, m_checkState);
    connectForm(m_form, this);
}

CDontShowAgainMessageBox::~CDontShowAgainMessageBox()
{
    // The user's choice must be on disk before the box goes, not whenever Qt gets to it.
    if (m_settings) {
        m_settings->sync();
        delete m_settings;
        m_settings = nullptr;
    }
}

int CDontShowAgainMessageBox::execUnlessSuppressed()
{
    if (m_checkState == Qt::Checked)
        return 0;
    return exec();
}

void CDontShowAgainMessageBox::buttonAccept()
{
    if (m_settings)
        m_settings->setValue(checkedKey(m_id), m_checkState);
    QDialog::accept();
}

void CDontShowAgainMessageBox::buttonReject()
{
    QDialog::reject();
}

void CDontShowAgainMessageBox::buttonHelp() {}

void CDontShowAgainMessageBox::buttonClicked(QAbstractButton*) {}

void CDontShowAgainMessageBox::checkboxStateChanged(int state)
{
    m_checkState = state;
}
