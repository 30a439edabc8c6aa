#include "CFxUIGroupIterator.h"

#include <utility>

CFxUIGroupIterator::CFxUIGroupIterator(std::vector<CFxUIGroup*> groups)
    : m_groups(std::move(groups))
{}

CFxUIGroupIterator::~CFxUIGroupIterator() = default;

bool CFxUIGroupIterator::Done() const
{
    return m_position >= m_groups.size();
}

CFxUIGroup* CFxUIGroupIterator::Current() const
{
    return Done() ? nullptr : m_groups[m_position];
}

void CFxUIGroupIterator::Next()
{
    if (!Done())
        ++m_position;
}
