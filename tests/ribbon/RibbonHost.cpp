#include "RibbonHost.h"

#include <CFxHostServices.h>
#include <CFxUIJsonReader.h>

RibbonItem record(const QString& id, const QString& type)
{
    RibbonItem item;
    item.text = id.toLower();
    item.id = id;
    item.rowId = QStringLiteral("ID_RibbonAddInsRow");
    item.tabText = item.panelText = QStringLiteral("Add-Ins");
    item.tabId = kAddInsTab;
    item.panelId = QStringLiteral("ID_RibbonAddInsPanel");
    item.commandName = QStringLiteral("RUN_") + id;
    item.description = QStringLiteral("Runs ") + id;
    item.type = type;
    return item;
}

QStringList texts(const CFxUIList<CFxUIRibbonButton>& buttons)
{
    QStringList result;
    for (const CFxUIRibbonButton* button : buttons)
        result << button->GetText().toQString();
    return result;
}

CFxUIRibbonRow* row(const CFxUIGroup& group, const QString& tabId, const QString& panelId,
                    const QString& rowId)
{
    const CFxUIRibbonTab* tab = exactly(group.GetRibbonTabs(), tabId);
    const CFxUIRibbonPanel* panel = tab ? exactly(tab->GetPanels(), panelId) : nullptr;
    return panel ? exactly(panel->GetRows(), rowId) : nullptr;
}

CFxUIRibbonSystemMenuItem* menuEntry(const CFxUIGroup& group, const QStringList& path)
{
    CFxUIRibbonSystemMenuItem* entry = nullptr;
    for (const QString& id : path) {
        entry = exactly(entry ? entry->GetSubItems() : group.GetApplicationMenu(), id);
        if (!entry)
            return nullptr;
    }
    return entry;
}

RibbonHost::RibbonHost()
{
    auto ui = std::make_unique<CFxHostUI>();
    CFxUIJsonReader::readFile(kDefaultProfile, *ui);
    GetFxHostServices()->SetUI(std::move(ui));
    m_module = std::make_unique<LoadedModule>();
    static_cast<RibbonEntryPoints&>(*this) = RibbonEntryPoints::find(toOdString(m_module->path()));
}

RibbonHost::~RibbonHost()
{
    m_module.reset();
    GetFxHostServices()->SetUI(nullptr);
}

CFxUIRibbonRow* RibbonHost::addInsRow() const
{
    return row(mainGroup(), kAddInsTab, "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow");
}
