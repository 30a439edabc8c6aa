#include "HelpMenuBuilder.h"

#include "HostMenuHelpers.h"
#include "common/HostIdentifiers.h"
#include "common/IdentifierMatch.h"

#include <QObject>

#include <CFxUI.h>
#include <OdEdCommandStack.h>

#include <vector>

namespace {
struct HelpEntry
{
    const char* identifier;
    const char* text;
    const char* command;
};

const HelpEntry kCheckForUpdates{
    "ID_CHECKFORUPDATES", QT_TRANSLATE_NOOP("QObject", "Check for Updates"), "CHECKFORUPDATES"};
const HelpEntry kReleaseNotes{
    "ID_RELEASENOTES", QT_TRANSLATE_NOOP("QObject", "Quillon Release Notes"), "RELEASENOTES"};

constexpr int kGlobalOrLocalName = OdEdCommandStack::kGlobal | OdEdCommandStack::kLocal;

// The dots are the menu's convention for "opens something", not part of the translated text.
CFxString menuText(const HelpEntry& entry)
{
    return QObject::tr(entry.text) + QStringLiteral("...");
}

CFxString statusText(const HelpEntry& entry)
{
    return QObject::tr(entry.text) + QStringLiteral(": ") + QLatin1String(entry.command);
}

OdString commandName(const HelpEntry& entry)
{
    return toOdString(QString::fromLatin1(entry.command));
}

void registerUnlessKnown(const HelpEntry& entry, OdEdCommand& command)
{
    if (!odedRegCmds()->lookupCmd(commandName(entry), kGlobalOrLocalName))
        odedRegCmds()->addCommand(&command);
}

// Moves the entries made in this pass, in creation order, right behind the host's online
// support item.
void placeAfterOnlineSupport(CFxUIPullDownMenu& help, const std::vector<CFxUIMenuEntry*>& created)
{
    CFxUIList<CFxUIMenuEntry>& entries = help.GetEntries();
    for (int index = 0; index < entries.GetCount(); ++index) {
        CFxUIMenuEntry* anchor = entries.GetAt(index);
        if (!IdentifierMatch::isOnlineSupportItem(anchor->GetIdentifier()))
            continue;
        for (CFxUIMenuEntry* entry : created) {
            entries.InsertAfter(anchor, entry);
            anchor = entry;
        }
    }
}

void addSystemMenuBlock()
{
    HostMenuHelpers::insertRibbonSystemMenuItem(CFxString(), CFxString(), true);
    for (const HelpEntry* entry : {&kCheckForUpdates, &kReleaseNotes})
        HostMenuHelpers::insertRibbonSystemMenuItem(menuText(*entry), entry->command, false);
    HostMenuHelpers::insertRibbonSystemMenuItem(CFxString(), CFxString(), true);
}

// The entries are recognised by their text here: whatever carries the text goes, in one pass
// (docs/lifecycle.md, row "Help entries").
void removeEntry(const HelpEntry& entry, OdEdCommand& command)
{
    if (CFxUIPullDownMenu* help = HostMenuHelpers::findHelpMenu(kHelpMenuId))
        HostMenuHelpers::removeItemsByText(help->GetEntries(), menuText(entry));
    if (odedRegCmds()->lookupCmd(commandName(entry), kGlobalOrLocalName))
        odedRegCmds()->removeCmd(&command);
}
} // namespace

void HelpMenuBuilder::add()
{
    CFxUIPullDownMenu* help = HostMenuHelpers::findHelpMenu(kHelpMenuId);
    CFxUIGroup* group = HostMenuHelpers::findItemGroup();
    std::vector<CFxUIMenuEntry*> created;
    for (const HelpEntry* entry : {&kCheckForUpdates, &kReleaseNotes}) {
        if (CFxUIMenuEntry* made = HostMenuHelpers::addPullDownItem(
                menuText(*entry), entry->identifier, entry->command, statusText(*entry), group))
            created.push_back(made);
    }
    registerUnlessKnown(kReleaseNotes, m_releaseNotes);
    registerUnlessKnown(kCheckForUpdates, m_checkForUpdates);
    if (help)
        placeAfterOnlineSupport(*help, created);
    addSystemMenuBlock();
}

void HelpMenuBuilder::remove()
{
    removeEntry(kCheckForUpdates, m_checkForUpdates);
    removeEntry(kReleaseNotes, m_releaseNotes);
}
