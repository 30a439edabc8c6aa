#pragma once

#include "CFxUIList.h"
#include "CFxUIObject.h"

class CFxUICommand;

// A button of a ribbon row: a command button, a split button (a button with a list of
// sub-buttons) or a separator.
class FX_KERNEL_EXPORT CFxUIRibbonButton : public CFxUIObject
{
public:
    // The kind codes of CFxUI::CreateRibbonButton.
    enum Kind
    {
        kSplit = 3,
        kCommand = 4,
        kSeparator = 8
    };

    CFxUIRibbonButton(int kind, const CFxString& identifier);
    ~CFxUIRibbonButton() override;

    int GetKind() const { return m_kind; }
    const CFxString& GetText() const { return m_text; }
    void SetText(const CFxString& text) { m_text = text; }
    CFxUICommand* GetCommand() const { return m_command; }
    void AttachCommand(CFxUICommand* command);

    // How the button shows itself: 1 a large button with its text under the icon, 3 a small
    // button with its text beside the icon (the form of entries in a split button's list).
    int GetDisplayStyle() const { return m_displayStyle; }
    void SetDisplayStyle(int style) { m_displayStyle = style; }
    // A split button's own look (as the display style) and what clicking it does: 1 runs the
    // command of the last sub-button chosen, 0 only opens the list.
    int GetSplitStyle() const { return m_splitStyle; }
    void SetSplitStyle(int style) { m_splitStyle = style; }
    int GetSplitBehavior() const { return m_splitBehavior; }
    void SetSplitBehavior(int behavior) { m_splitBehavior = behavior; }

    CFxUIList<CFxUIRibbonButton>& GetSubButtons() { return m_subButtons; }
    const CFxUIList<CFxUIRibbonButton>& GetSubButtons() const { return m_subButtons; }

private:
    int m_kind;
    CFxString m_text;
    CFxUICommand* m_command = nullptr;
    int m_displayStyle = 0;
    int m_splitStyle = 0;
    int m_splitBehavior = 0;
    CFxUIList<CFxUIRibbonButton> m_subButtons;
};
