#pragma once

class CFxUI;
class CFxUICommand;
class CFxUIGroup;
class CFxUIRibbonButton;
struct RibbonItem;

// The ribbon buttons made from a sibling's record.
class RibbonButtons
{
public:
    // The button that stands in the row for `item`: a large command button for "command", a
    // split button for "split"; null for "separator" or any other type.
    static CFxUIRibbonButton* createTopLevel(CFxUI& ui, const RibbonItem& item,
                                             CFxUICommand* command);
    // Gives every record below `item`, depth first and in order, its command, and a sub-button
    // under the button made for its parent record. Below a separator, or below a record of an
    // unknown type, records get their commands but no buttons. Records may nest to any depth,
    // so the walk keeps its own stack; a record that contains itself is not walked again.
    static void addChildren(CFxUI& ui, CFxUIGroup& mainGroup, const RibbonItem& item,
                            CFxUIRibbonButton* button);

private:
    // The sub-button of `child` appended to `parent`; null when nothing can go under it.
    static CFxUIRibbonButton* appendChild(CFxUI& ui, const RibbonItem& child, CFxUICommand* command,
                                          CFxUIRibbonButton* parent);
};
