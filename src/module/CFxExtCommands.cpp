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
// connector. What else the window got stays on purpose: the Add-Ins tab and panel hold the
// siblings' buttons, which the siblings put in and take out on their own schedule, not the
// window's; the question view, the collaboration view and the task pane are the companions'
// own, and the companions offer no call to take them away (they go with the host's window);
// the ribbon system-menu block is left as HelpMenuBuilder says.
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
