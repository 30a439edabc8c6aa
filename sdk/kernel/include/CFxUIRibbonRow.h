#pragma once

#include "CFxUIList.h"
#include "CFxUIObject.h"
#include "CFxUIRibbonButton.h"

// A row of buttons in a ribbon panel.
class FX_KERNEL_EXPORT CFxUIRibbonRow : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIRibbonRow() override;

    CFxUIList<CFxUIRibbonButton>& GetButtons() { return m_buttons; }
    const CFxUIList<CFxUIRibbonButton>& GetButtons() const { return m_buttons; }

private:
    CFxUIList<CFxUIRibbonButton> m_buttons;
};
