#include "UiInvariants.h"

#include <QStringList>

#include <CFxHostUI.h>
#include <CFxUIGroup.h>
#include <CFxUIRibbonButton.h>
#include <CFxUIRibbonPanel.h>
#include <CFxUIRibbonRow.h>
#include <CFxUIRibbonSystemMenuItem.h>
#include <CFxUIRibbonTab.h>

#include <vector>

namespace {
const QString kAddInsTab = QStringLiteral("ID_RibbonAddInsTab");
const QString kAddInsPanel = QStringLiteral("ID_RibbonAddInsPanel");
const QString kAddInsRow = QStringLiteral("ID_RibbonAddInsRow");
const QString kDataManagement = QStringLiteral("ID_VAULTLINE_ITEM");
const QStringList kOrdered{QStringLiteral("ID_DRAWCOMPARE_ITEM"), QStringLiteral("ID_GCODE_ITEM"),
                           kDataManagement, QStringLiteral("ID_PK_PARTKIT")};

bool same(const CFxString& id, const QString& other)
{
    return id.equalNoCase(CFxString(other));
}

template <class T>
T* first(const CFxUIList<T>& list, const QString& id)
{
    for (T* item : list) {
        if (item && same(item->GetIdentifier(), id))
            return item;
    }
    return nullptr;
}

CFxUIRibbonTab* addInsTab(const CFxHostUI& ui)
{
    const CFxUIGroup* group = UiInvariants::mainGroup(ui);
    return group ? first(group->GetRibbonTabs(), kAddInsTab) : nullptr;
}

QString marksBelow(const CFxUIRibbonButton& top)
{
    std::vector<const CFxUIRibbonButton*> buttons{&top};
    while (!buttons.empty()) {
        const CFxUIRibbonButton* button = buttons.back();
        buttons.pop_back();
        if (button->GetText().toQString().startsWith(QStringLiteral("~~")))
            return QStringLiteral("the button \"%1\" is marked hidden twice")
                .arg(button->GetIdentifier().toQString());
        for (const CFxUIRibbonButton* sub : button->GetSubButtons())
            buttons.push_back(sub);
    }
    return {};
}

QString duplicatesIn(const CFxUIRibbonRow& row)
{
    const auto& buttons = row.GetButtons();
    for (int i = 0; i < buttons.GetCount(); ++i) {
        const CFxString& id = buttons.GetAt(i)->GetIdentifier();
        for (int j = i + 1; j < buttons.GetCount(); ++j) {
            if (!id.toQString().isEmpty() && id.equalNoCase(buttons.GetAt(j)->GetIdentifier()))
                return QStringLiteral("the row \"%1\" holds \"%2\" twice")
                    .arg(row.GetIdentifier().toQString(), id.toQString());
        }
        const QString marks = marksBelow(*buttons.GetAt(i));
        if (!marks.isEmpty())
            return marks;
    }
    return {};
}
} // namespace

CFxUIGroup* UiInvariants::mainGroup(const CFxHostUI& ui)
{
    for (CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group->IsMainGroup())
            return group;
    }
    return nullptr;
}

CFxUIRibbonRow* UiInvariants::addInsRow(const CFxHostUI& ui)
{
    const CFxUIRibbonTab* tab = addInsTab(ui);
    if (!tab)
        return nullptr;
    for (const CFxUIRibbonPanel* panel : tab->GetPanels()) {
        if (!same(panel->GetIdentifier(), kAddInsPanel))
            continue;
        if (CFxUIRibbonRow* row = first(panel->GetRows(), kAddInsRow))
            return row;
    }
    return nullptr;
}

QString UiInvariants::rowsAndMarks(const CFxHostUI& ui)
{
    const CFxUIGroup* group = mainGroup(ui);
    if (!group)
        return QStringLiteral("the main group is gone");
    for (const CFxUIRibbonTab* tab : group->GetRibbonTabs()) {
        for (const CFxUIRibbonPanel* panel : tab->GetPanels()) {
            for (const CFxUIRibbonRow* row : panel->GetRows()) {
                const QString problem = duplicatesIn(*row);
                if (!problem.isEmpty())
                    return problem;
            }
        }
    }
    return {};
}

QString UiInvariants::orderedButtons(const CFxHostUI& ui)
{
    const CFxUIRibbonRow* row = addInsRow(ui);
    if (!row)
        return {};
    int previous = -1;
    QStringList seen;
    for (const CFxUIRibbonButton* button : row->GetButtons()) {
        for (int order = 0; order < kOrdered.size(); ++order) {
            if (!same(button->GetIdentifier(), kOrdered[order]))
                continue;
            seen << button->GetIdentifier().toQString();
            if (order < previous)
                return QStringLiteral("the Add-Ins row holds %1 out of order").arg(seen.join(", "));
            previous = order;
        }
    }
    return {};
}

QString UiInvariants::noEmptyAddIns(const CFxHostUI& ui, bool afterUnload)
{
    const CFxUIRibbonTab* tab = addInsTab(ui);
    if (tab && tab->GetPanels().GetCount() == 0)
        return QStringLiteral("the main group shows an Add-Ins tab without panels");
    const CFxUIRibbonRow* row = addInsRow(ui);
    if (afterUnload && row && row->GetButtons().GetCount() == 0)
        return QStringLiteral("an unload left the Add-Ins panel with an empty row");
    return {};
}

QString UiInvariants::visibility(const CFxHostUI& ui, const QString& id, bool visible)
{
    const CFxUIRibbonRow* row = addInsRow(ui);
    if (!row)
        return {};
    for (const CFxUIRibbonButton* button : row->GetButtons()) {
        if (button->GetIdentifier().toQString() != kDataManagement)
            continue;
        for (const CFxUIRibbonButton* sub : button->GetSubButtons()) {
            if (!same(sub->GetIdentifier(), id))
                continue;
            if (sub->GetText().toQString().startsWith(QLatin1Char('~')) == visible)
                return QStringLiteral("the entry \"%1\" is not %2 as asked")
                    .arg(id, visible ? QStringLiteral("shown") : QStringLiteral("hidden"));
        }
        return {};
    }
    return {};
}

QString UiInvariants::exportTableEntries(const CFxHostUI& ui)
{
    const CFxUIGroup* group = mainGroup(ui);
    if (!group)
        return {};
    std::vector<const CFxUIList<CFxUIRibbonSystemMenuItem>*> lists{&group->GetApplicationMenu()};
    while (!lists.empty()) {
        const CFxUIList<CFxUIRibbonSystemMenuItem>* list = lists.back();
        lists.pop_back();
        int entries = 0;
        for (const CFxUIRibbonSystemMenuItem* item : *list) {
            entries += same(item->GetIdentifier(), QStringLiteral("RSMI_EXPORTTABLE")) ? 1 : 0;
            lists.push_back(&item->GetSubItems());
        }
        if (entries > 1)
            return QStringLiteral("the export-table entry is in the application menu twice");
    }
    return {};
}
