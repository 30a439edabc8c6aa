#pragma once

#include "CFxDocumentManager.h"
#include "CFxString.h"
#include "FxKernelExport.h"

#include <QString>
#include <QUuid>

#include <functional>
#include <memory>

class CFxUI;
class QWidget;

// The host's services as modules reach them through GetFxSystemServices(). The host program
// configures them (the Set... operations) before it loads any module.
class FX_KERNEL_EXPORT CFxSystemServices
{
public:
    using MessageBoxHandler =
        std::function<int(const QString& text, const QString& caption, int flags)>;

    CFxSystemServices();
    virtual ~CFxSystemServices();
    CFxSystemServices(const CFxSystemServices&) = delete;
    CFxSystemServices& operator=(const CFxSystemServices&) = delete;

    // The product version's four numbers: release, service release, service pack, build.
    virtual void GetProductVersion(int& release, int& serviceRelease, int& servicePack,
                                   int& build) const;
    // The user-interface language id of the host's language setting (0 means "System").
    virtual int GetCurrentLanguageId() const;
    virtual CFxDocumentManager* GetDocumentManager();
    // Shows a message to the user and returns the button chosen (1 for OK).
    virtual int FxMessageBox(const CFxString& text, const CFxString& caption, int flags);
    // The host's main window, or null while there is none.
    virtual QWidget* GetMainFrame() const;
    // The folder where the host keeps its optional companion libraries.
    virtual QString GetCompanionFolder() const;
    // The host's user-interface model, or null while it has none.
    virtual CFxUI* GetUI() const;
    // The identifier of this installation of the host (handed to the task pane).
    virtual QUuid GetInstallationId() const;

    void SetProductVersion(int release, int serviceRelease, int servicePack, int build);
    void SetCurrentLanguageId(int languageId);
    // Without a handler a message only becomes a message-box event; with one it is also shown.
    void SetMessageBoxHandler(MessageBoxHandler handler);
    void SetCompanionFolder(const QString& folder);
    void SetUI(std::unique_ptr<CFxUI> ui);
    void SetInstallationId(const QUuid& id);

    // The host's main window came into being / is about to go: every editor reactor that is a
    // CFxEditorReactor hears of it.
    void MainFrameCreated(QWidget* mainFrame);
    void MainFrameDestroyed(QWidget* mainFrame);

private:
    int m_version[4] = {2026, 0, 1, 4120};
    int m_languageId = 2;
    CFxDocumentManager m_documents;
    MessageBoxHandler m_messageBoxHandler;
    QString m_companionFolder;
    std::unique_ptr<CFxUI> m_ui;
    QUuid m_installationId;
    QWidget* m_mainFrame = nullptr;
};

FX_KERNEL_EXPORT CFxSystemServices* GetFxSystemServices();
