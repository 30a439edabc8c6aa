#include "RibbonButtons.h"

#include "RibbonCommands.h"

#include <QSet>

#include <CFxUI.h>
#include <ExtCommands/RibbonItem.h>

#include <vector>

namespace {
// Display styles of the host's ribbon buttons.
constexpr int kLargeWithTextBelow = 1;
constexpr int kSmallWithTextBeside = 3;
// A split button's own style values: it shows as a small button with its text beside it (the
// same value as kSmallWithTextBeside, in the split style's own setting) and runs the entry
// chosen last.
constexpr int kSplitSmallWithTextBeside = 3;
constexpr int kSplitRunsLastChosen = 1;

bool isType(const RibbonItem& item, const char* type)
{
    return item.type == QLatin1String(type);
}

CFxUIRibbonButton* makeCommandButton(CFxUI& ui, const RibbonItem& item, CFxUICommand* command,
                                     int displayStyle)
{
    CFxUIRibbonButton* button = ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, item.id);
    button->SetText(item.text);
    button->AttachCommand(command);
    button->SetDisplayStyle(displayStyle);
    return button;
}

CFxUIRibbonButton* makeSplitButton(CFxUI& ui, const RibbonItem& item)
{
    CFxUIRibbonButton* button = ui.CreateRibbonButton(CFxUIRibbonButton::kSplit, item.id);
    button->SetText(item.text);
    button->SetSplitStyle(kSplitSmallWithTextBeside);
    button->SetSplitBehavior(kSplitRunsLastChosen);
    return button;
}

// One list of records being walked, and the button its records go under.
struct Level
{
    const RibbonItem* record;  // the record whose children are walked
    int nextChild;             // the index of the child to look at next
    CFxUIRibbonButton* parent; // the button the children's buttons go under; null for none
};
} // namespace

CFxUIRibbonButton* RibbonButtons::createTopLevel(CFxUI& ui, const RibbonItem& item,
                                                 CFxUICommand* command)
{
    if (isType(item, "command"))
        return makeCommandButton(ui, item, command, kLargeWithTextBelow);
    if (isType(item, "split"))
        return makeSplitButton(ui, item);
    return nullptr;
}

CFxUIRibbonButton* RibbonButtons::appendChild(CFxUI& ui, const RibbonItem& child,
                                              CFxUICommand* command, CFxUIRibbonButton* parent)
{
    if (!parent)
        return nullptr;
    if (isType(child, "separator")) {
        parent->GetSubButtons().Append(
            ui.CreateRibbonButton(CFxUIRibbonButton::kSeparator, CFxString()));
        // A separator holds nothing: what the record nests has no button to go under.
        return nullptr;
    }
    CFxUIRibbonButton* button = nullptr;
    if (isType(child, "command"))
        button = makeCommandButton(ui, child, command, kSmallWithTextBeside);
    else if (isType(child, "split"))
        button = makeSplitButton(ui, child);
    if (button)
        parent->GetSubButtons().Append(button);
    return button;
}

void RibbonButtons::addChildren(CFxUI& ui, CFxUIGroup& mainGroup, const RibbonItem& item,
                                CFxUIRibbonButton* button)
{
    std::vector<Level> levels{{&item, 0, button}};
    QSet<const RibbonItem*> walking{&item};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.nextChild >= level.record->children.size()) {
            walking.remove(level.record);
            levels.pop_back();
            continue;
        }
        const RibbonItem* child = level.record->children.at(level.nextChild++);
        if (!child || walking.contains(child))
            continue;
        CFxUICommand* command = RibbonCommands::findOrCreate(ui, mainGroup, *child);
        CFxUIRibbonButton* childButton = appendChild(ui, *child, command, level.parent);
        if (!child->children.isEmpty()) {
            walking.insert(child);
            levels.push_back({child, 0, childButton});
        }
    }
}
