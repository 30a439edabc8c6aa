#pragma once

#include "FxKernelExport.h"

#include <vector>

class CFxUIGroup;

// Walks the groups of a CFxUI; made by CFxUI::NewGroupIterator, deleted by its user. It walks
// a copy of the group list, so groups added meanwhile are not visited.
class FX_KERNEL_EXPORT CFxUIGroupIterator
{
public:
    explicit CFxUIGroupIterator(std::vector<CFxUIGroup*> groups);
    virtual ~CFxUIGroupIterator();

    bool Done() const;
    CFxUIGroup* Current() const;
    void Next();

private:
    std::vector<CFxUIGroup*> m_groups;
    std::size_t m_position = 0;
};
