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
// itself, creates the whole chain and also one empty nested folder of that name inside it;
// the nested folder is kept on purpose, so that the layout of the users' profiles does not
// change. A folder that cannot be made is no error: the choices then just do not persist.
QSettings* openSettings()
{
    const QDir folder(settingsFolder());
    folder.mkpath(folder.dirName());
    return new QSettings(folder.filePath(heapText("dontshowagainmessagebox.ini")),
                         QSettings::IniFormat);
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
        m_checkState = m_settings->value(checkedKey()).toInt();
    setUpForm(message, buttons);
    connectForm();
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
        m_settings->setValue(checkedKey(), m_checkState);
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

void CDontShowAgainMessageBox::setUpForm(const QString& message,
                                         QDialogButtonBox::StandardButtons buttons)
{
    m_form.setupUi(this);
    m_form.label->setText(message);
    m_form.buttonBox->clear();
    m_form.buttonBox->setStandardButtons(buttons);
    m_form.checkBox->setCheckState(static_cast<Qt::CheckState>(m_checkState));
}

// Connected by name through the meta-object, so that the overrides of a derived message box
// are the ones called.
void CDontShowAgainMessageBox::connectForm()
{
    connect(m_form.buttonBox, SIGNAL(accepted()), this, SLOT(buttonAccept()));
    connect(m_form.buttonBox, SIGNAL(rejected()), this, SLOT(buttonReject()));
    connect(m_form.buttonBox, SIGNAL(helpRequested()), this, SLOT(buttonHelp()));
    connect(m_form.buttonBox, SIGNAL(clicked(QAbstractButton*)), this,
            SLOT(buttonClicked(QAbstractButton*)));
    connect(m_form.checkBox, SIGNAL(stateChanged(int)), this, SLOT(checkboxStateChanged(int)));
}

QString CDontShowAgainMessageBox::checkedKey() const
{
    return m_id + heapText("/checked");
}
