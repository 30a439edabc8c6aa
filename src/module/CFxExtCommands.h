#pragma once

#include "menus/HelpMenuBuilder.h"
#include "publish/ViewcastPublishEntry.h"

#include <CFxEditorReactor.h>
#include <OdRxModule.h>

#include <string>

class QUuid;

// The module's editor reactor: does the module's work on the host's main window when the
// window is created, and takes part of it out again before the window goes; docs/lifecycle.md
// has a row for each piece, with what stays and why. The steps run in a fixed order: the
// translators come first, because the Add-Ins captions and the Help entries' texts are
// translated as they are made.
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
