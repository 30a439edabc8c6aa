#include "CFxUIMenuItem.h"

CFxUIMenuItem::CFxUIMenuItem() : CFxUIObject(CFxString()) {}

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIMenuItem::~CFxUIMenuItem() = default;
