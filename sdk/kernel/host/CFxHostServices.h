#pragma once

#include "CFxHostDocumentManager.h"
#include "CFxHostUI.h"
#include "CFxSystemServices.h"
#include "FxKernelExport.h"

#include <functional>
#include <memory>

// The host's side of the services that modules see as CFxSystemServices: the host program
// configures them (the Set... operations) before it loads any module, and tells them when its
// main window comes and goes. Nothing here is for modules.
class FX_KERNEL_EXPORT CFxHostServices final : public CFxSystemServices
{
public:
    using MessageBoxHandler =
        std::function<int(const QString& text, const QString& caption, int flags)>;

    CFxHostServices();
    ~CFxHostServices() override;

    void GetProductVersion(int& release, int& serviceRelease, int& servicePack,
                           int& build) const override;
    int GetCurrentLanguageId() const override;
    CFxHostDocumentManager* GetDocumentManager() override;
    int FxMessageBox(const CFxString& text, const CFxString& caption, int flags) override;
    CFxHostUI* GetUI() const override;
    QUuid GetInstallationId() const override;

    // The host's main window, or null while there is none.
    QWidget* GetMainFrame() const;

    // The host's own version: until it is set, every number is 0.
    void SetProductVersion(int release, int serviceRelease, int servicePack, int build);
    void SetCurrentLanguageId(int languageId);
    // Without a handler a message only becomes a message-box event; with one it is also shown.
    void SetMessageBoxHandler(MessageBoxHandler handler);
    void SetUI(std::unique_ptr<CFxHostUI> ui);
    void SetInstallationId(const QUuid& id);

    // The host's main window came into being / is about to go: every editor reactor that is a
    // CFxEditorReactor hears of it.
    void MainFrameCreated(QWidget* mainFrame);
    void MainFrameDestroyed(QWidget* mainFrame);

private:
    int m_version[4] = {0, 0, 0, 0};
    int m_languageId = 2;
    CFxHostDocumentManager m_documents;
    MessageBoxHandler m_messageBoxHandler;
    std::unique_ptr<CFxHostUI> m_ui;
    QUuid m_installationId;
    QWidget* m_mainFrame = nullptr;
};

// The one instance, which GetFxSystemServices() hands to modules.
FX_KERNEL_EXPORT CFxHostServices* GetFxHostServices();
