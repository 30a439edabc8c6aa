#include "CFxUIRibbonButton.h"

CFxUIRibbonButton::CFxUIRibbonButton(int kind, const CFxString& identifier)
    : CFxUIObject(identifier), m_kind(kind)
{}
