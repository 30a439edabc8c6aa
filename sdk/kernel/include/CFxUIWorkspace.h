#pragma once

#include "CFxUIList.h"
#include "CFxUIObject.h"
#include "CFxUIRibbonTab.h"

// A workspace: the ribbon tabs shown while the user works in it. Its identifier is its name
// ("Drafting and Annotation").
class FX_KERNEL_EXPORT CFxUIWorkspace : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIWorkspace() override;

    CFxUIList<CFxUIRibbonTab>& GetRibbonTabs() { return m_tabs; }
    const CFxUIList<CFxUIRibbonTab>& GetRibbonTabs() const { return m_tabs; }

private:
    CFxUIList<CFxUIRibbonTab> m_tabs;
};
