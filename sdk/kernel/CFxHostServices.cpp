#include "CFxHostServices.h"

#include "CFxEditorReactor.h"

#include <OdEventLog.h>
#include <OdHostEditor.h>

#include <utility>

CFxHostServices::CFxHostServices() = default;

CFxHostServices::~CFxHostServices() = default;

void CFxHostServices::GetProductVersion(int& release, int& serviceRelease, int& servicePack,
                                        int& build) const
{
    release = m_version[0];
    serviceRelease = m_version[1];
    servicePack = m_version[2];
    build = m_version[3];
}

int CFxHostServices::GetCurrentLanguageId() const
{
    return m_languageId;
}

CFxHostDocumentManager* CFxHostServices::GetDocumentManager()
{
    return &m_documents;
}

int CFxHostServices::FxMessageBox(const CFxString& text, const CFxString& caption, int flags)
{
    OdEventLog::report(QStringLiteral("message-box"),
                       {{QStringLiteral("caption"), caption.toQString()},
                        {QStringLiteral("text"), text.toQString()}});
    return m_messageBoxHandler ? m_messageBoxHandler(text.toQString(), caption.toQString(), flags)
                               : 1;
}

QWidget* CFxHostServices::GetMainFrame() const
{
    return m_mainFrame;
}

CFxHostUI* CFxHostServices::GetUI() const
{
    return m_ui.get();
}

QUuid CFxHostServices::GetInstallationId() const
{
    return m_installationId;
}

void CFxHostServices::SetUI(std::unique_ptr<CFxHostUI> ui)
{
    m_ui = std::move(ui);
}

void CFxHostServices::SetInstallationId(const QUuid& id)
{
    m_installationId = id;
}

void CFxHostServices::SetProductVersion(int release, int serviceRelease, int servicePack, int build)
{
    m_version[0] = release;
    m_version[1] = serviceRelease;
    m_version[2] = servicePack;
    m_version[3] = build;
}

void CFxHostServices::SetCurrentLanguageId(int languageId)
{
    m_languageId = languageId;
}

void CFxHostServices::SetMessageBoxHandler(MessageBoxHandler handler)
{
    m_messageBoxHandler = std::move(handler);
}

void CFxHostServices::MainFrameCreated(QWidget* mainFrame)
{
    m_mainFrame = mainFrame;
    OdEventLog::report(QStringLiteral("mainframe-created"));
    odedHostEditor()->notify([mainFrame](OdEditorReactor* reactor) {
        if (auto* hostReactor = dynamic_cast<CFxEditorReactor*>(reactor))
            hostReactor->mainFrameCreated(mainFrame);
    });
}

void CFxHostServices::MainFrameDestroyed(QWidget* mainFrame)
{
    OdEventLog::report(QStringLiteral("mainframe-destroyed"));
    odedHostEditor()->notify([mainFrame](OdEditorReactor* reactor) {
        if (auto* hostReactor = dynamic_cast<CFxEditorReactor*>(reactor))
            hostReactor->mainFrameDestroyed(mainFrame);
    });
    m_mainFrame = nullptr;
}

CFxHostServices* GetFxHostServices()
{
    static CFxHostServices services;
    return &services;
}

CFxSystemServices* GetFxSystemServices()
{
    return GetFxHostServices();
}
