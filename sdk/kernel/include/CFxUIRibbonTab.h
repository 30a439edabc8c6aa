#pragma once

#include "CFxUIList.h"
#include "CFxUIObject.h"
#include "CFxUIRibbonPanel.h"

// A ribbon tab and its panels.
class FX_KERNEL_EXPORT CFxUIRibbonTab : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIRibbonTab() override;

    // The caption on the tab, and the one shown in the tab's key-tip and customisation lists.
    const CFxString& GetCaption() const { return m_caption; }
    void SetCaption(const CFxString& caption) { m_caption = caption; }
    const CFxString& GetListCaption() const { return m_listCaption; }
    void SetListCaption(const CFxString& caption) { m_listCaption = caption; }

    CFxUIList<CFxUIRibbonPanel>& GetPanels() { return m_panels; }
    const CFxUIList<CFxUIRibbonPanel>& GetPanels() const { return m_panels; }

private:
    CFxString m_caption;
    CFxString m_listCaption;
    CFxUIList<CFxUIRibbonPanel> m_panels;
};
