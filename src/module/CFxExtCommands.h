#pragma once

#include "menus/HelpMenuBuilder.h"
#include "publish/ViewcastPublishEntry.h"

#include <CFxEditorReactor.h>
#include <OdRxModule.h>

#include <string>

class QUuid;

// The module's editor reactor: does the module's work on the host's main window when the
// window is created, and takes part of it out again before the window goes (what stays, and
// why, is said at mainFrameDestroyed). The steps run in a fixed order, because later ones rely
// on earlier ones (the texts of the Help entries need the translators, the companions need the
// Add-Ins tab).
class CFxExtCommands : public CFxEditorReactor
{
public:
    CFxExtCommands();
    ~CFxExtCommands() override;

    void mainFrameCreated(QWidget* mainFrame) override;
    void mainFrameDestroyed(QWidget* mainFrame) override;

private:
    void createAddInsTab();
    void addQuestionView();
    void addCollaborationView();
    void loadOnlineConnector();
    void addTaskPane(QUuid& installationId, const std::string& tag);
    void unloadOnlineConnector();

    // Null until the online connector has been loaded.
    OdRxModulePtr m_onlineConnector;
    HelpMenuBuilder m_helpMenu;
    ViewcastPublishEntry m_publishEntry;
};
