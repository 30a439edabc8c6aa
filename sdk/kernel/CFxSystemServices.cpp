#include "CFxSystemServices.h"

#include "CFxEditorReactor.h"
#include "CFxUI.h"

#include <QCoreApplication>

#include <OdEditor.h>
#include <OdEventLog.h>

#include <utility>

CFxSystemServices::CFxSystemServices() = default;

CFxSystemServices::~CFxSystemServices() = default;

void CFxSystemServices::GetProductVersion(int& release, int& serviceRelease, int& servicePack,
                                          int& build) const
{
    release = m_version[0];
    serviceRelease = m_version[1];
    servicePack = m_version[2];
    build = m_version[3];
}

int CFxSystemServices::GetCurrentLanguageId() const
{
    return m_languageId;
}

CFxDocumentManager* CFxSystemServices::GetDocumentManager()
{
    return &m_documents;
}

int CFxSystemServices::FxMessageBox(const CFxString& text, const CFxString& caption, int flags)
{
    OdEventLog::report(QStringLiteral("message-box"),
                       {{QStringLiteral("caption"), caption.toQString()},
                        {QStringLiteral("text"), text.toQString()}});
    return m_messageBoxHandler ? m_messageBoxHandler(text.toQString(), caption.toQString(), flags)
                               : 1;
}

QWidget* CFxSystemServices::GetMainFrame() const
{
    return m_mainFrame;
}

QString CFxSystemServices::GetCompanionFolder() const
{
    if (!m_companionFolder.isEmpty())
        return m_companionFolder;
    return QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString();
}

CFxUI* CFxSystemServices::GetUI() const
{
    return m_ui.get();
}

QUuid CFxSystemServices::GetInstallationId() const
{
    return m_installationId;
}

void CFxSystemServices::SetUI(std::unique_ptr<CFxUI> ui)
{
    m_ui = std::move(ui);
}

void CFxSystemServices::SetInstallationId(const QUuid& id)
{
    m_installationId = id;
}

void CFxSystemServices::SetProductVersion(int release, int serviceRelease, int servicePack,
                                          int build)
{
    m_version[0] = release;
    m_version[1] = serviceRelease;
    m_version[2] = servicePack;
    m_version[3] = build;
}

void CFxSystemServices::SetCurrentLanguageId(int languageId)
{
    m_languageId = languageId;
}

void CFxSystemServices::SetMessageBoxHandler(MessageBoxHandler handler)
{
    m_messageBoxHandler = std::move(handler);
}

void CFxSystemServices::SetCompanionFolder(const QString& folder)
{
    m_companionFolder = folder;
}

void CFxSystemServices::MainFrameCreated(QWidget* mainFrame)
{
    m_mainFrame = mainFrame;
    OdEventLog::report(QStringLiteral("mainframe-created"));
    odedEditor()->notify([mainFrame](OdEditorReactor* reactor) {
        if (auto* hostReactor = dynamic_cast<CFxEditorReactor*>(reactor))
            hostReactor->mainFrameCreated(mainFrame);
    });
}

void CFxSystemServices::MainFrameDestroyed(QWidget* mainFrame)
{
    OdEventLog::report(QStringLiteral("mainframe-destroyed"));
    odedEditor()->notify([mainFrame](OdEditorReactor* reactor) {
        if (auto* hostReactor = dynamic_cast<CFxEditorReactor*>(reactor))
            hostReactor->mainFrameDestroyed(mainFrame);
    });
    m_mainFrame = nullptr;
}

CFxSystemServices* GetFxSystemServices()
{
    static CFxSystemServices services;
    return &services;
}
