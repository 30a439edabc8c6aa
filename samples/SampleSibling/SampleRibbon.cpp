#include "SampleRibbon.h"

#include <QSet>

#include <ExtCommands/ExportTableRibbon.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>

void SampleRibbon::loadOwnButtons()
{
    RibbonItem button;
    button.id = QStringLiteral("ID_SAMPLE_ITEM");
    button.text = QStringLiteral("Sample");
    button.type = QStringLiteral("command");
    button.commandName = QStringLiteral("SAMPLELIST");
    button.description = QStringLiteral("What the sample sibling has put on the ribbon");
    button.tabId = QStringLiteral("ID_RibbonAddInsTab");
    button.tabText = QStringLiteral("Add-Ins");
    button.panelId = QStringLiteral("ID_RibbonAddInsPanel");
    button.panelText = QStringLiteral("Add-Ins");
    button.rowId = QStringLiteral("ID_RibbonAddInsRow");
    load(&button, 0);
}

void SampleRibbon::load(RibbonItem* record, int position)
{
    LoadRibbonMenuWrapper(record, position);
    LoadedButton button = describe(*record);
    if (!remembers(button))
        m_buttons.push_back(std::move(button));
}

void SampleRibbon::loadExportTable()
{
    LoadExportTableRibbonMenuWrapper();
    m_exportTable = true;
}

void SampleRibbon::unloadExportTable()
{
    UnLoadExportTableRibbonMenuWrapper();
    m_exportTable = false;
}

QStringList SampleRibbon::loaded() const
{
    QStringList ids;
    for (const LoadedButton& button : m_buttons)
        ids << button.id;
    return ids;
}

void SampleRibbon::unloadAll()
{
    while (!m_buttons.empty()) {
        unload(m_buttons.back());
        m_buttons.pop_back();
    }
    if (m_exportTable)
        unloadExportTable();
}

// Walked with a list of its own, not recursively: records may nest thousands deep. A record met
// twice (one that holds itself) is taken once, as ExtCommands walks it once.
SampleRibbon::LoadedButton SampleRibbon::describe(const RibbonItem& record)
{
    LoadedButton button{record.id, record.tabId, record.panelId, record.rowId, {}};
    QSet<const RibbonItem*> seen{&record};
    std::vector<const RibbonItem*> pending(record.children.rbegin(), record.children.rend());
    while (!pending.empty()) {
        const RibbonItem* entry = pending.back();
        pending.pop_back();
        if (!entry || seen.contains(entry))
            continue;
        seen.insert(entry);
        // An entry without an identifier (a separator) shares the command of that empty
        // identifier with every other one; unloading it would also take out the first button
        // without an identifier in the row, whoever loaded it.
        if (!entry->id.isEmpty())
            button.entries << entry->id;
        pending.insert(pending.end(), entry->children.rbegin(), entry->children.rend());
    }
    return button;
}

bool SampleRibbon::remembers(const LoadedButton& button) const
{
    const auto same = [](const QString& one, const QString& other) {
        return one.compare(other, Qt::CaseInsensitive) == 0;
    };
    for (const LoadedButton& known : m_buttons) {
        if (same(known.id, button.id) && same(known.tabId, button.tabId) &&
            same(known.panelId, button.panelId) && same(known.rowId, button.rowId))
            return true;
    }
    return false;
}

void SampleRibbon::unload(const LoadedButton& button)
{
    RibbonMenuItemWrapper* wrapper = RibbonMenuItemWrapper::GetRibbonMenuItemWrapperInstance();
    for (auto entry = button.entries.crbegin(); entry != button.entries.crend(); ++entry)
        wrapper->UnloadRibbonMenu(*entry, button.tabId, button.panelId, button.rowId);
    wrapper->UnloadRibbonMenu(button.id, button.tabId, button.panelId, button.rowId);
}
