#include "CFxUIRibbonRow.h"

// Defined here so that the class's virtual table and type information live in the kernel
// library alone.
CFxUIRibbonRow::~CFxUIRibbonRow() = default;
