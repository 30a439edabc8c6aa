#pragma once

#include <QtGlobal>

class CFxHostUI;
class CFxUIRibbonSystemMenuItem;
class CFxUIRibbonTab;

// A fingerprint of what a part of the user-interface model shows: the objects, their texts,
// kinds and commands, however deeply nested. The window compares fingerprints to redraw only
// the parts that changed. The walks keep their own stack, so any depth is fine, and their
// cost grows with the size of the part.
class UiSignature
{
public:
    static quint64 ofTab(const CFxUIRibbonTab& tab);
    static quint64 ofMenuBar(const CFxHostUI& ui);
    // The application menu of the main group and the ribbon's system menu.
    static quint64 ofSystemMenus(const CFxHostUI& ui);
};
