#include "CFxUIMenuItem.h"

CFxUIMenuItem::CFxUIMenuItem() : CFxUIObject(CFxString()) {}
