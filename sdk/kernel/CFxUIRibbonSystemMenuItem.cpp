#include "CFxUIRibbonSystemMenuItem.h"

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIRibbonSystemMenuItem::~CFxUIRibbonSystemMenuItem() = default;
