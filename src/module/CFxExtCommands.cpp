#include "CFxExtCommands.h"

#include "CompanionSettings.h"
#include "DelayLoadLibrary.h"
#include "locale/LanguageTable.h"

#include <QNOmniplaneView.h>
#include <QUuid>

#include <CFxSystemServices.h>
#include <IQuestionView.h>
#include <OdRxDynamicLinker.h>
#include <TarnTaskPane.h>
#include <XmlTodxf.h>

namespace {
// The platform modules of the online and the collaboration-platform connectors.
constexpr wchar_t kOnlineConnector[] = L"QNTForgeportConnector";
constexpr wchar_t kCollaborationConnector[] = L"QuillonOmniplaneConnector";
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
    if (!DelayLoadLibrary::companion(IQuestionViewEntryPoints::library).load())
        return;
    if (CompanionSettings::networkCompanionsDisabled())
        return;
    IQuestionView().addiQuestionView();
}

void CFxExtCommands::addCollaborationView()
{
    if (!CompanionSettings::collaborationEnabled())
        return;
    // The linker keeps the module loaded after this pointer goes; it is unloaded with the rest
    // at shut-down.
    const OdRxModulePtr connector =
        odrxDynamicLinker()->loadModule(OdString(kCollaborationConnector), true);
    if (!connector.isNull())
        QNOmniplaneView().addQNOmniplaneView();
}

void CFxExtCommands::loadOnlineConnector()
{
    m_onlineConnector = odrxDynamicLinker()->loadModule(OdString(kOnlineConnector), true);
    if (!m_onlineConnector.isNull())
        XmlTodxf().addXmlTodxf();
}

void CFxExtCommands::addTaskPane(QUuid& installationId, const std::string& tag)
{
    if (!DelayLoadLibrary::companion(TarnTaskPaneEntryPoints::library).load())
        return;
    if (CompanionSettings::networkCompanionsDisabled())
        return;
    TarnTaskPane().addTaskPane(installationId, tag);
}

void CFxExtCommands::unloadOnlineConnector()
{
    if (!m_onlineConnector.isNull())
        XmlTodxf().removeXmlTodxf();
    // Asked for whether or not the connector ever loaded. The member keeps its reference, so
    // the linker defers the unload until the reference goes with this reactor (the connector's
    // view is gone already); a new main window takes the same connector up again.
    odrxDynamicLinker()->unloadModule(OdString(kOnlineConnector));
}
