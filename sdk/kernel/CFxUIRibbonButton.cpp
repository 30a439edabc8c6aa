#include "CFxUIRibbonButton.h"

CFxUIRibbonButton::CFxUIRibbonButton(int kind, const CFxString& identifier)
    : CFxUIObject(identifier), m_kind(kind)
{}

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIRibbonButton::~CFxUIRibbonButton() = default;
