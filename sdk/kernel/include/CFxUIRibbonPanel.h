#pragma once

#include "CFxUIList.h"
#include "CFxUIObject.h"
#include "CFxUIRibbonRow.h"

// A panel of a ribbon tab: a titled group of rows.
class FX_KERNEL_EXPORT CFxUIRibbonPanel : public CFxUIObject
{
public:
    using CFxUIObject::CFxUIObject;
    ~CFxUIRibbonPanel() override;

    // The caption shown under the panel, and the one shown when the panel is collapsed.
    const CFxString& GetCaption() const { return m_caption; }
    void SetCaption(const CFxString& caption) { m_caption = caption; }
    const CFxString& GetCollapsedCaption() const { return m_collapsedCaption; }
    void SetCollapsedCaption(const CFxString& caption) { m_collapsedCaption = caption; }
    // 1 when the panel shows a dialog launcher in its caption bar.
    int GetLauncher() const { return m_launcher; }
    void SetLauncher(int launcher) { m_launcher = launcher; }

    CFxUIList<CFxUIRibbonRow>& GetRows() { return m_rows; }
    const CFxUIList<CFxUIRibbonRow>& GetRows() const { return m_rows; }

private:
    CFxString m_caption;
    CFxString m_collapsedCaption;
    int m_launcher = 0;
    CFxUIList<CFxUIRibbonRow> m_rows;
};
