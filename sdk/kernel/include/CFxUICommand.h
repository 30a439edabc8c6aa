#pragma once

#include "CFxUIObject.h"

#include <unordered_set>

class QWidget;

// A user-interface command: what a button or a menu entry runs (its macro, a command line),
// with the texts and icons that show it.
class FX_KERNEL_EXPORT CFxUICommand : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUICommand() override;

    const CFxString& GetMacro() const { return m_macro; }
    void SetMacro(const CFxString& macro) { m_macro = macro; }
    const CFxString& GetActionId() const { return m_actionId; }
    void SetActionId(const CFxString& actionId) { m_actionId = actionId; }
    const CFxString& GetName() const { return m_name; }
    void SetName(const CFxString& name) { m_name = name; }
    const CFxString& GetDescription() const { return m_description; }
    void SetDescription(const CFxString& description) { m_description = description; }

    // Each icon has a path and a second path (the icon for a dark theme); both are resource
    // or file paths.
    void SetSmallIcon(const CFxString& path, const CFxString& secondPath);
    void SetLargeIcon(const CFxString& path, const CFxString& secondPath);
    const CFxString& GetSmallIcon(int which = 0) const { return m_smallIcon[which ? 1 : 0]; }
    const CFxString& GetLargeIcon(int which = 0) const { return m_largeIcon[which ? 1 : 0]; }

    // A widget shown as the command's extended tool tip; null for a plain one.
    QWidget* GetExtendedTooltip() const { return m_extendedTooltip; }
    void SetExtendedTooltip(QWidget* tooltip) { m_extendedTooltip = tooltip; }

private:
    // The buttons and menu entries that have the command attached, kept by their
    // AttachCommand, so that deleting the command visits those alone.
    friend class CFxUI;
    friend class CFxUIRibbonButton;
    friend class CFxUIRibbonSystemMenuItem;
    const std::unordered_set<CFxUIObject*>& GetHolders() const { return m_holders; }
    void AddHolder(CFxUIObject* holder) { m_holders.insert(holder); }
    void RemoveHolder(CFxUIObject* holder) { m_holders.erase(holder); }

    CFxString m_macro;
    CFxString m_actionId;
    CFxString m_name;
    CFxString m_description;
    CFxString m_smallIcon[2];
    CFxString m_largeIcon[2];
    QWidget* m_extendedTooltip = nullptr;
    std::unordered_set<CFxUIObject*> m_holders;
};
