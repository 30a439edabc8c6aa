#include "UiSignature.h"

#include <CFxHostUI.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {
class Fingerprint
{
public:
    void add(quint64 value)
    {
        m_value = (m_value ^ value) * 0xff51afd7ed558ccdULL;
        m_value ^= m_value >> 29;
    }
    void add(const void* pointer)
    {
        add(static_cast<quint64>(reinterpret_cast<quintptr>(pointer)));
    }
    // The characters as they are, eight bytes a step: making a QString of each text, or
    // hashing it a few bytes at a time, cost more than the rest of a walk, which the end of
    // every statement takes over a model that only grows.
    void add(const CFxString& text)
    {
        const auto* bytes = reinterpret_cast<const unsigned char*>(text.c_str());
        std::size_t size = static_cast<std::size_t>(text.length()) * sizeof(wchar_t);
        add(static_cast<quint64>(size));
        while (size > 0) {
            const std::size_t step = std::min(size, sizeof(quint64));
            quint64 word = 0;
            std::memcpy(&word, bytes, step);
            add(word);
            bytes += step;
            size -= step;
        }
    }
    void add(const CFxUICommand* command)
    {
        add(static_cast<const void*>(command));
        if (!command)
            return;
        add(command->GetMacro());
        add(command->GetDescription());
        add(command->GetSmallIcon());
        add(command->GetLargeIcon());
    }
    quint64 value() const { return m_value; }

private:
    quint64 m_value = 0xcbf29ce484222325ULL;
};

void addButtons(Fingerprint& print, const CFxUIRibbonRow& row)
{
    std::vector<const CFxUIRibbonButton*> pending;
    for (int at = row.GetButtons().GetCount() - 1; at >= 0; --at)
        pending.push_back(row.GetButtons().GetAt(at));
    while (!pending.empty()) {
        const CFxUIRibbonButton* button = pending.back();
        pending.pop_back();
        print.add(static_cast<const void*>(button));
        print.add(static_cast<quint64>(button->GetKind()));
        print.add(button->GetIdentifier());
        print.add(button->GetText());
        print.add(button->GetCommand());
        const auto& subs = button->GetSubButtons();
        print.add(static_cast<quint64>(subs.GetCount()));
        for (int at = subs.GetCount() - 1; at >= 0; --at)
            pending.push_back(subs.GetAt(at));
    }
}

void addItems(Fingerprint& print, const CFxUIList<CFxUIRibbonSystemMenuItem>& items)
{
    std::vector<const CFxUIRibbonSystemMenuItem*> pending;
    for (int at = items.GetCount() - 1; at >= 0; --at)
        pending.push_back(items.GetAt(at));
    while (!pending.empty()) {
        const CFxUIRibbonSystemMenuItem* item = pending.back();
        pending.pop_back();
        print.add(static_cast<const void*>(item));
        print.add(item->GetIdentifier());
        print.add(item->GetText());
        print.add(item->GetCommand());
        const auto& subs = item->GetSubItems();
        print.add(static_cast<quint64>(subs.GetCount()));
        for (int at = subs.GetCount() - 1; at >= 0; --at)
            pending.push_back(subs.GetAt(at));
    }
}
} // namespace

quint64 UiSignature::ofTab(const CFxUIRibbonTab& tab)
{
    Fingerprint print;
    print.add(static_cast<const void*>(&tab));
    print.add(tab.GetIdentifier());
    print.add(tab.GetCaption());
    for (const CFxUIRibbonPanel* panel : tab.GetPanels()) {
        print.add(static_cast<const void*>(panel));
        print.add(panel->GetCaption());
        for (const CFxUIRibbonRow* row : panel->GetRows()) {
            print.add(static_cast<const void*>(row));
            print.add(static_cast<quint64>(row->GetButtons().GetCount()));
            addButtons(print, *row);
        }
    }
    return print.value();
}

quint64 UiSignature::ofMenuBar(const CFxHostUI& ui)
{
    Fingerprint print;
    print.add(static_cast<const void*>(ui.GetReferenceMenuGroup()));
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        print.add(static_cast<const void*>(group));
        for (const CFxUIPullDownMenu* menu : group->GetPullDownMenus()) {
            print.add(static_cast<const void*>(menu));
            print.add(menu->GetText());
            for (const CFxUIMenuEntry* entry : menu->GetEntries()) {
                print.add(static_cast<const void*>(entry));
                print.add(entry->GetText());
                const CFxUIMenuItem* item = entry->GetItem();
                print.add(static_cast<const void*>(item));
                if (item) {
                    print.add(item->GetStatusText());
                    print.add(item->GetMacro());
                }
            }
        }
    }
    return print.value();
}

quint64 UiSignature::ofSystemMenus(const CFxHostUI& ui)
{
    Fingerprint print;
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        print.add(static_cast<const void*>(group));
        print.add(static_cast<quint64>(group->IsMainGroup()));
        if (group->IsMainGroup())
            addItems(print, group->GetApplicationMenu());
    }
    addItems(print, ui.GetRibbonSystemMenu()->GetSubItems());
    return print.value();
}
