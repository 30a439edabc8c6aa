#include "CFxExtCommands.h"

#include "locale/LanguageTable.h"

#include <QUuid>

#include <CFxSystemServices.h>
#include <OdRxDynamicLinker.h>

namespace {
// The platform module of the online connector.
constexpr wchar_t kOnlineConnector[] = L"QNTForgeportConnector";
// How the task pane is told which edition of the host it serves.
constexpr char kTaskPaneTag[] = "ENT";
} // namespace

CFxExtCommands::CFxExtCommands() = default;

CFxExtCommands::~CFxExtCommands() = default;

void CFxExtCommands::mainFrameCreated(QWidget*)
{
    QUuid installationId = GetFxSystemServices()->GetInstallationId();
    {
        // Installs the translators before anything shows a text; they stay installed.
        const LanguageTable translatorLoader;
        translatorLoader.loadTranslators(1);
        createAddInsTab();
        addQuestionView();
        addCollaborationView();
        loadOnlineConnector();
        m_helpMenu.add();
        m_publishEntry.add();
        addTaskPane(installationId, kTaskPaneTag);
    }
}

void CFxExtCommands::mainFrameDestroyed(QWidget*)
{
    m_helpMenu.remove();
    m_publishEntry.remove();
    unloadOnlineConnector();
}

void CFxExtCommands::createAddInsTab()
{
    // Comes with the ribbon wrapper: finds or creates the tab "ID_RibbonAddInsTab" and its
    // panel "ID_RibbonAddInsPanel", captioned "Add-Ins", for the siblings' buttons.
}

void CFxExtCommands::addQuestionView()
{
    // Comes with the social-service connector: adds its question view unless the network
    // companions are switched off.
}

void CFxExtCommands::addCollaborationView()
{
    // Comes with the collaboration-platform connector: loads "QuillonOmniplaneConnector" and
    // adds its view when the registry value "OmniplaneCSEnable" switches it on.
}

void CFxExtCommands::loadOnlineConnector()
{
    // Comes with the online connector: loads the platform module "QNTForgeportConnector" into
    // m_onlineConnector and adds its view.
}

void CFxExtCommands::addTaskPane(QUuid&, const std::string&)
{
    // Comes with the task pane companion: adds the task pane for this installation, unless the
    // network companions are switched off.
}

void CFxExtCommands::unloadOnlineConnector()
{
    // Removing the connector's view comes with the online connector. The unload request goes
    // out whether or not the connector was ever loaded, and the member keeps its value.
    odrxDynamicLinker()->unloadModule(OdString(kOnlineConnector));
}
