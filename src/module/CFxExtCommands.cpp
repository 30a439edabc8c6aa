#include "CFxExtCommands.h"

#include "CompanionSettings.h"
#include "DelayLoadLibrary.h"
#include "common/HostIdentifiers.h"
#include "locale/LanguageTable.h"
#include "ribbon/HostMainGroup.h"
#include "ribbon/RibbonContainers.h"

#include <QNOmniplaneView.h>
#include <QObject>
#include <QUuid>

#include <CFxSystemServices.h>
#include <CFxUI.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>
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
        // The translator loader, a language table of this window's own: it installs the
        // translators before anything shows a text, and goes when the window's work is done
        // (the translators stay installed).
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

// Takes out only the Help entries and their commands, the publish entry and the online
// connector. Kept: docs/lifecycle.md, rows "Add-Ins tab and panel", "Question view",
// "Collaboration connector", "Task pane" and "System-menu block".
void CFxExtCommands::mainFrameDestroyed(QWidget*)
{
    m_helpMenu.remove();
    m_publishEntry.remove();
    unloadOnlineConnector();
}

void CFxExtCommands::createAddInsTab()
{
    // The tab and panel that sibling modules' buttons go into are the ribbon wrapper's, made by
    // the wrapper's own steps: exactly what the wrapper would make for a sibling's first button
    // (a new tab joins the workspace "Drafting and Annotation" as well).
    RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance();
    CFxUI* ui = GetFxSystemServices()->GetUI();
    CFxUIGroup* mainGroup = HostMainGroup::find(ui);
    if (!mainGroup)
        return;
    const CFxString caption(QObject::tr("Add-Ins"));
    CFxUIRibbonTab* tab =
        RibbonContainers::findOrCreateTab(*ui, *mainGroup, CFxString(kAddInsTabId), caption);
    if (tab)
        RibbonContainers::findOrCreatePanel(*ui, *mainGroup, *tab, CFxString(kAddInsPanelId),
                                            caption);
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
    // The linker keeps the module loaded after this pointer goes: docs/lifecycle.md, row
    // "Collaboration connector".
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
    // Asked for whether or not the connector ever loaded; the member's reference makes the
    // linker wait. Kept: docs/lifecycle.md, row "Online connector".
    odrxDynamicLinker()->unloadModule(OdString(kOnlineConnector));
}
